// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <cstdint>
#include <functional>

/// The factorization of libbignum as it goes on: no buffers, and every outcome told apart.

enum class MetodoDeFactor {
    Ninguno,        ///< the number itself: there was nothing to find
    DivisionTanteo, ///< divided out, or left when that was done
    Rho,
    CurvaEliptica,
    Criba, ///< the quadratic sieve
    Raiz,  ///< what was left was a power of it
};

struct FactorHallado
{
    QString base;
    std::int64_t exponente = 0;
    bool primo = false; ///< false for a composite that could not be split
    MetodoDeFactor metodo = MetodoDeFactor::Ninguno;
    double cotaDeCurva = 0;  ///< curves: first bound of the one that found it
    std::int64_t curvas = 0; ///< curves: begun by then
    // The sieve's counts; 0 for other methods.
    std::int64_t relaciones = 0;
    std::int64_t parciales = 0; ///< relations with large primes among them
    std::int64_t polinomios = 0;
    std::int64_t primosDeBase = 0;
    std::int64_t columnas = 0; ///< of the matrix that was solved
    double segundosDelMetodo = 0;
    double segundos = 0; ///< from the beginning until the factor was known
};

enum class FinDeFactores {
    TodosPrimos,    ///< the product of what was handed over is |n|, and all of it is prime
    QuedaCompuesto, ///< the product is |n|, but one composite at least could not be split
    Detenido,       ///< by the receiver or by TerminaBignum
    NoEsNumero,     ///< n is no whole number
    SinMemoria,
};

/// Takes a factor; false ends the search.
using RecibeFactor = std::function<bool(const FactorHallado &factor)>;

/// Hands over the factors of |n| as they are found, composites that are left last; none for 0
/// and 1. Throws what `recibe` throws.
FinDeFactores BuscaFactores(const QString &n, const RecibeFactor &recibe);
