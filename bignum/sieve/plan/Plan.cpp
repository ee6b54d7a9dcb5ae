// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/plan/Plan.h"

#include "bignum/sieve/plan/Multiplier.h"

#include <algorithm>
#include <cmath>

namespace bignum::sieve {

namespace {

std::size_t bitCount(const mpz_class &n)
{
    return mpz_sizeinbase(n.get_mpz_t(), 2);
}

/// Large primes are kept in 32 bits.
constexpr double kLargestLargePrime = 4294967295.0;

} // namespace

Plan::Plan(const mpz_class &number)
    : Plan(number, chooseMultiplier(number), parametersFor(bitCount(number)))
{
}

Plan::Plan(const mpz_class &number, std::uint32_t k, const Parameters &chosen)
    : n(number),
      multiplier(k),
      kn(number * k),
      parameters(chosen),
      base(kn, chosen.baseSize),
      kernels(&kernelsFor(bestVectorLevel()))
{
}

std::uint64_t Plan::largePrimeBound() const
{
    return static_cast<std::uint64_t>(
        std::min(parameters.largePrimeFactor * largestPrime(), kLargestLargePrime));
}

double Plan::cofactorBound() const
{
    const auto bound = static_cast<double>(largePrimeBound());
    return parameters.cofactorExponent > 0 ? std::pow(bound, parameters.cofactorExponent) : bound;
}

double Plan::valueBits() const
{
    long exponent = 0;
    const double mantissa = mpz_get_d_2exp(&exponent, kn.get_mpz_t());
    const double knBits = std::log2(mantissa) + static_cast<double>(exponent);
    return std::log2(reach()) + (knBits - 1) / 2 - 1;
}

} // namespace bignum::sieve
