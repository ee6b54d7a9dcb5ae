// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <gmpxx.h>
#include <vector>

namespace bignum::sieve {

/// The primes of which the relations are made: those modulo which kn is a square.
struct FactorBase
{
    /// The first `size` elements for kn = 1 mod 4; a prime that divides kn belongs to them.
    FactorBase(const mpz_class &kn, std::size_t size);

    std::size_t size() const { return primes.size(); }

    std::vector<std::uint32_t> primes; ///< ascending; 1 at index 0 stands for -1, then 2, 3, ...
    std::vector<std::uint32_t> roots;  ///< a square root of kn modulo each, 0 where it divides kn
};

constexpr std::size_t kFirstOddPrime = 2; ///< index of the first odd prime of a factor base

} // namespace bignum::sieve
