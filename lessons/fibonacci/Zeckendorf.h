// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// One step of the greedy algorithm: from what remains, the largest Fibonacci number that fits.
struct PasoZeckendorf
{
    QString resto;   ///< what remains before the step
    int indice = 0;  ///< the summand is F(indice), indice ≥ 2
    QString sumando; ///< its value
    QString queda;   ///< what remains after it
};

/// The representation of a positive whole number as a sum of Fibonacci numbers of which no two are
/// neighbours, which is unique (Édouard Zeckendorf, "Représentation des nombres naturels par une
/// somme de nombres de Fibonacci ou de nombres de Lucas", 1972). One step a summand, the largest
/// first. `n` is a plain number of decimal digits.
QList<PasoZeckendorf> representacionZeckendorf(const QString &n);

/// The digits 0 and 1 that say which of F(k), …, F(3), F(2) are summands.
QString codigoZeckendorf(const QList<PasoZeckendorf> &pasos);

/// What is wrong with a sum given as an answer.
enum class FalloZeckendorf {
    Ninguno,
    NoEsSuma,      ///< something other than small whole numbers joined by +
    Cero,          ///< a summand is 0
    NoEsFibonacci, ///< a summand is no Fibonacci number
    Consecutivos,  ///< two summands are neighbours or equal
    OtraSuma       ///< the sum is another number
};

/// Judges a sum such as "89 + 8 + 3", in any order, as the representation of n. A summand may be an
/// expression without a plus sign, such as "fib(11)". Throws what Evalua throws.
FalloZeckendorf juzgaZeckendorf(const QString &suma, int n);
