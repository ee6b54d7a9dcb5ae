// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <gmpxx.h>

namespace bignum {

/// F(117592) is the largest Fibonacci number with no more digits than a value may have.
constexpr unsigned kMaxFibonacci = 117'592;

/// The work of one computation. Additions include subtractions, and twofolds, which are additions
/// of a number to itself.
struct Work
{
    std::int64_t additions = 0;
    std::int64_t products = 0;
};

/// F(n), F(0) = 0, F(1) = 1, by n - 1 additions upwards from F(0) and F(1).
mpz_class fibonacciByIteration(unsigned n, Work &work);

/// The part of that from F(k) and F(k + 1) on, which the caller has: n - k - 1 additions; none for
/// n ≤ k + 1. Leaves F(n) in `next`, for n > k.
void iterateFibonacci(unsigned k, unsigned n, mpz_class &current, mpz_class &next, Work &work);

/// F(n) by F(2k) = F(k) (2 F(k+1) - F(k)) and F(2k+1) = F(k)² + F(k+1)², a step for each binary
/// digit of n: Edsger W. Dijkstra, "In honour of Fibonacci" (EWD 654), 1978.
mpz_class fibonacciByDoubling(unsigned n, Work &work);

} // namespace bignum
