// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <gmpxx.h>
#include <vector>

namespace bignum {

constexpr std::uint32_t kSmallPrimeLimit = 1U << 16;

/// Consecutive primes whose product fits a limb: one division of a long number by the product
/// serves them all.
struct PrimeGroup
{
    mp_limb_t product;
    std::uint32_t first; ///< index of the first prime in SmallPrimes::primes
    std::uint32_t count;
};

struct SmallPrimes
{
    std::vector<std::uint32_t> primes; ///< the odd primes below kSmallPrimeLimit
    std::vector<PrimeGroup> groups;
};

/// The table, made on first use.
const SmallPrimes &smallPrimes();

/// Whether n, which is odd and above kSmallPrimeLimit, has a factor below kSmallPrimeLimit.
bool hasSmallFactor(const mpz_class &n);

} // namespace bignum
