// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

/// Euler's function of a number of any size, by its factors.
class FuncionEuler
{
public:
    /// A prime power p^k that divides the number exactly, and its value of the function,
    /// p^(k-1)·(p-1).
    struct Factor
    {
        QString primo;
        QString exponente;
        QString fi;

        /// As sentences write it, "2³", and as a Formula is told it, "2^3"; "2" alone where k is 1.
        QString potencia() const;
        QString enFormula() const;
    };

    /// Factors n ≥ 1, given by its decimal digits. A number of hundreds of digits without small
    /// factors keeps the caller waiting up to two minutes.
    explicit FuncionEuler(const QString &n);

    /// Empty where the factors of n could not be found.
    const QString &valor() const { return m_valor; }

    /// The prime powers that were found, primes ascending.
    const QList<Factor> &factores() const { return m_factores; }

    /// Whether the last factor is composite and could not be split.
    bool esIncompleta() const { return m_incompleta; }

    /// n as a product of prime powers, as sentences write it, and as a Formula is told it.
    QString factorizacion() const;
    QString enFormula() const;

    /// The value as a product of p^(k-1)·(p - 1) over the prime powers, as it is written by hand.
    QString formula() const;

    /// How the value comes from the factors, a line a step.
    QString pasos() const;

private:
    /// The composite one behind the prime powers.
    QList<Factor> todos() const;

    QString m_n;
    QString m_valor;
    QList<Factor> m_factores;
    Factor m_resto; ///< the composite one
    bool m_incompleta = false;
};
