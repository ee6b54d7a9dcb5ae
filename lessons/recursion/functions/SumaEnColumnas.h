// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <optional>

/// A number plus its reverse, column by column from the units on.
class SumaEnColumnas
{
public:
    struct Columna
    {
        int cifra = 0;
        int pareja = 0; ///< the digit of the reverse
        int llega = 0;  ///< the carry of the column before
        int suma() const { return cifra + pareja + llega; }
        bool conAcarreo() const { return suma() > 9; }
    };

    /// Digits only, at least one.
    explicit SumaEnColumnas(const QString &numero);

    const QList<Columna> &columnas() const { return m_columnas; }
    int acarreos() const;
    /// The first column, from the units, that gets another carry than the one opposite to it.
    std::optional<qsizetype> desigual() const;
    qsizetype opuesta(qsizetype columna) const { return m_columnas.size() - 1 - columna; }

private:
    QList<Columna> m_columnas;
};
