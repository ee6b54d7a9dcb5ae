#pragma once

#include <QList>
#include <QString>

/// A row of the table of factors.
struct FilaDeFactor
{
    QString factor;
    QString exponente;
};

/// The factorization of a number of any size by libbignum.
struct FactoresGrandes
{
    QList<FilaDeFactor> filas; ///< primes ascending; a composite that was left stands last
    bool completa = false;     ///< whether every entry is a prime
};

/// The factors of a number given by its decimal digits; none and not complete when the text is no
/// number.
FactoresGrandes factorizaGrande(const QString &n);
