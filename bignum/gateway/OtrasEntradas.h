// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <chrono>
#include <cstdint>
#include <vector>

/// What libbignum offers beside the operations of ModBignum: things that lessons show at work.

/// The number of primes not above `limite`.
std::int32_t CuentaPrimos(std::int32_t limite);

/// Puts the primes from `desde` to `hasta` behind those of the list.
void AgregaPrimos(std::int64_t desde, std::int32_t hasta, std::vector<std::uint32_t> &lista);

/// Ways of computing F(n) on numbers.
enum class ViaDeFibonacci {
    Iteracion,  ///< n - 1 additions, upwards from F(0) and F(1)
    Duplicacion ///< from F(k), F(k+1) to F(2k), F(2k+1), for each binary digit of n
};

/// The largest index: F of it has the most digits that the library gives.
inline constexpr int MaximoDeFibonacci = 117'592;

struct FibonacciCalculado
{
    QString valor;
    std::int64_t sumas = 0;            ///< of one computation, subtractions and twofolds included
    std::int64_t productos = 0;        ///< of one computation
    std::chrono::nanoseconds tiempo{}; ///< of all of them, without the writing of the value
};

/// F(n), 0 ≤ n ≤ MaximoDeFibonacci, computed so many times over (at least once).
FibonacciCalculado CalculaFibonacci(ViaDeFibonacci via, int n, std::int32_t veces);

/// F(n) by the additions that lead from F(desde) and F(desde + 1), which are not counted, up to it;
/// 0 ≤ desde < n ≤ MaximoDeFibonacci.
FibonacciCalculado SigueFibonacci(int desde, int n);
