// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

/// A number as a product of powers, and Euler's function of each.
struct Descomposicion
{
    struct Parte
    {
        QString base;
        QString exponente;
        QString fi; ///< of base^exponente; empty where the base is a composite
    };

    bool completa = false; ///< all bases are prime
    QList<Parte> partes;   ///< bases ascending, what could not be split last
};

/// That of n ≥ 1, by the library's plain factorization: a number of hundreds of digits without
/// small factors takes up to two minutes.
Descomposicion Descompone(const QString &n);
