// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/Descomposicion.h"

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

        /// "p^k", or "p" alone where k is 1.
        QString potencia() const;
    };

    /// Factors n ≥ 1, given by its decimal digits. A number of hundreds of digits without small
    /// factors keeps the caller waiting up to two minutes.
    explicit FuncionEuler(const QString &n);
    /// Of an n that is factored already.
    FuncionEuler(const QString &n, const Descomposicion &factores);

    /// Empty where the factors of n could not be found.
    const QString &valor() const { return m_valor; }

    /// The prime powers that were found, primes ascending.
    const QList<Factor> &factores() const { return m_factores; }

    /// What could not be split, a composite or a product of several; empty where there is none.
    const QString &compuesto() const { return m_compuesto; }

    /// n as a product of prime powers.
    QString factorizacion() const;

    /// The value as a product of p^(k-1)·(p - 1) over the prime powers, as it is written by hand.
    QString formula() const;

    /// How the value comes from the factors, a line a step.
    QString pasos() const;

private:
    QString m_n;
    QString m_valor;
    QString m_compuesto;
    QList<Factor> m_factores;
};
