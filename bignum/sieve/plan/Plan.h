// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/plan/FactorBase.h"
#include "bignum/sieve/plan/Parameters.h"
#include "bignum/sieve/sieving/Kernels.h"

namespace bignum::sieve {

/// All that is settled before the sieving of n starts, and shared by all threads.
///
/// The polynomials are (2ax + b)^2 - kn with kn = 1 mod 4 and b odd, so that 4a divides all their
/// values and every x counts: (2ax + b)^2 - kn = 4a(ax^2 + bx + c). They are sieved for
/// -reach <= x < reach; a position is x + reach.
struct Plan
{
    /// `n` is odd, composite, above 2^50, and no power.
    explicit Plan(const mpz_class &n);
    Plan(const mpz_class &n, std::uint32_t multiplier, const Parameters &parameters);

    std::uint32_t interval() const { return parameters.blocks * kBlockSize; }
    std::uint32_t reach() const { return interval() / 2; }
    std::uint32_t largestPrime() const { return base.primes.back(); }
    std::uint64_t largePrimeBound() const;
    /// The bound of what sieving and division may leave of a value: of one or two large primes.
    double cofactorBound() const;
    /// The bits of ax^2 + bx + c at the ends of the interval and, negative, in its middle.
    double valueBits() const;

    mpz_class n;
    std::uint32_t multiplier;
    mpz_class kn;
    Parameters parameters;
    FactorBase base;
    const Kernels *kernels;
};

} // namespace bignum::sieve
