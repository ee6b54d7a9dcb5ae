// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace bignum::sieve {

/// What may be left of a value once the primes of the base are divided out.
struct CofactorBounds
{
    std::uint64_t largestPrime; ///< of the base: no smaller factor is left
    std::uint64_t largePrime;   ///< the bound of a large prime
    double product; ///< the bound of the product of two, or of one where two are not used
};

/// The one or two large primes of a cofactor (1 for none), if both are within their bound.
std::optional<std::array<std::uint64_t, 2>> largePrimes(std::uint64_t cofactor,
                                                        const CofactorBounds &bounds);

} // namespace bignum::sieve
