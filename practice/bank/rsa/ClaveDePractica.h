// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/bank/shared/Numeros.h"
#include "practice/engine/Ejercicio.h"

#include <numeric>
#include <utility>

/// A key with small primes.
struct ClaveDePractica
{
    qint64 p, r, s, t; ///< p < r; t is the inverse of s modulo φ(q), and not s itself

    qint64 q() const { return p * r; }
    qint64 fi() const { return (p - 1) * (r - 1); }
    qint64 lambda() const { return std::lcm(p - 1, r - 1); }
    /// Whether a number of any length is the inverse of s modulo m.
    bool inverso(const QString &numero, qint64 m) const { return restoDe(numero, m) * s % m == 1; }
};

/// Two of a list of primes, the smaller one first.
std::pair<qint64, qint64> dosDe(const QList<qint64> &primos, Sorteo &sorteo);

/// A key with those primes, both from 7 on, and s up to a bound.
ClaveDePractica claveCon(std::pair<qint64, qint64> primos, qint64 mayorS, Sorteo &sorteo);

/// φ(q), and the inverse of s by Euclid's algorithm.
Pasos pasosDeT(const ClaveDePractica &clave);

/// The kinds about the size of a key: how many blocks, how many bits.
Ejercicio bloquesDeRSA(int nivel, Sorteo &sorteo);
/// The primes from q and φ(q).
Ejercicio primosDeFi(int nivel, Sorteo &sorteo);
/// The private exponent from the public key alone.
Ejercicio rompeRSA(int nivel, Sorteo &sorteo);
