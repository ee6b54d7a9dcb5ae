// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <gmpxx.h>
#include <vector>

namespace bignum::sieve {

/// root^2 = product of the factors and the large primes, modulo the number n to be split.
///
/// `factors` are indices into the factor base, as often as each divides (in no particular order);
/// index 0 stands for -1. `large` are the primes beyond the base, 1 where there is none; equal ones
/// may stand there twice.
struct Relation
{
    mpz_class root;
    std::vector<std::uint32_t> factors;
    std::array<std::uint64_t, 2> large{1, 1};
};

} // namespace bignum::sieve
