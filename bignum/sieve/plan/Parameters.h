// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

namespace bignum::sieve {

/// Positions that are sieved together: their bytes stay in the first-level cache of a core.
constexpr std::uint32_t kBlockSize = 1U << 15;

/// What the sieve is set to for numbers of one size.
struct Parameters
{
    std::size_t baseSize;      ///< elements of the factor base
    std::uint32_t blocks;      ///< in which a polynomial is sieved, both sides of 0 together
    double largePrimeFactor;   ///< the large primes' bound, in largest primes of the base
    double cofactorExponent;   ///< two large primes: their product's bound, as a power of the one
                               ///< large prime's; 0 for one large prime
    std::uint32_t firstSieved; ///< smaller primes are left out of the sieving
    double unsievedFactor;     ///< a candidate is forgiven so many times what they give on average:
                               ///< the first division tells soon enough
};

/// By the bits of kn, 50 at least; between the rows of a table that was measured by total time.
Parameters parametersFor(std::size_t bits);

} // namespace bignum::sieve
