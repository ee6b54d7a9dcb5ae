// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmpxx.h>
#include <vector>

namespace bignum {

/// A prime and how often it divides.
struct SmallFactor
{
    mpz_class prime;
    unsigned long exponent;
};

/// Divides the prime factors below 2^16 out of n > 0 and gives them in ascending order; it ends
/// sooner when what is left fits 64 bits.
std::vector<SmallFactor> removeSmallFactors(mpz_class &n);

} // namespace bignum
