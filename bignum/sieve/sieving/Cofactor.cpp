// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/sieving/Cofactor.h"

#include "bignum/arithmetic/Montgomery64.h"
#include "bignum/factoring/PollardRho.h"

#include <algorithm>

namespace bignum::sieve {

namespace {

/// Fermat's test with base 2: the few composites that pass are no loss.
bool seemsPrime(std::uint64_t n)
{
    const Montgomery64 modulus(n);
    const std::uint64_t one = modulus.one();
    std::uint64_t power = one;
    for (std::uint64_t bit = std::uint64_t{1} << 63; bit != 0; bit /= 2) {
        power = modulus.multiply(power, power);
        if (((n - 1) & bit) != 0)
            power = modulus.add(power, power);
    }
    return power == one;
}

} // namespace

std::optional<std::array<std::uint64_t, 2>> largePrimes(std::uint64_t cofactor,
                                                        const CofactorBounds &bounds)
{
    if (cofactor <= bounds.largePrime)
        return std::array<std::uint64_t, 2>{cofactor, 1};
    // Below the square of the largest prime it is a prime, and one too large.
    const bool composite = cofactor / bounds.largestPrime > bounds.largestPrime;
    if (!composite || static_cast<double>(cofactor) > bounds.product || seemsPrime(cofactor))
        return std::nullopt;
    const std::uint64_t p = rhoFactor(cofactor);
    const std::uint64_t q = cofactor / p;
    if (std::max(p, q) > bounds.largePrime)
        return std::nullopt;
    return std::array<std::uint64_t, 2>{std::min(p, q), std::max(p, q)};
}

} // namespace bignum::sieve
