// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Sorteo.h"

// Numbers as products of prime powers.

struct PotenciaDePrimo
{
    qint64 primo;
    int exponente;

    qint64 valor() const;
};
using Factores = QList<PotenciaDePrimo>;

/// So many different primes of a list, ascending, with exponents 1 … mayor, one of which is then
/// raised by 1: never a product of different primes alone.
Factores factoresConPotencia(const QList<qint64> &primos, int cuantos, int mayor, Sorteo &sorteo);
/// By trial division, n ≥ 1.
Factores factoresDe(qint64 n);
qint64 productoDe(const Factores &factores);
qint64 fiDe(const Factores &factores);
/// Carmichael's function, for which all powers of units are 1.
qint64 lambdaDe(const Factores &factores);
QString enFormula(const Factores &factores); ///< "2^3*5"
