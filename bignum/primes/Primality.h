// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <gmpxx.h>

namespace bignum {

/// Whether n is prime. Proven below 2^64. Above, the Baillie-PSW test, which no known composite
/// passes, and a strong test to a random base, which any given composite passes with a chance of at
/// most 1/4. Throws std::system_error where the system gives no random bits.
bool isPrime(const mpz_class &n);

/// Whether n is prime, proven.
bool isPrime(std::uint64_t n);

/// The least prime above n; 2 for every n below 2.
mpz_class nextPrime(const mpz_class &n);

} // namespace bignum
