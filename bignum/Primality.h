#pragma once

#include <cstdint>
#include <gmpxx.h>

namespace bignum {

/// Whether n is prime. Proven below 2^64; above, a composite that passes is not known (and for one
/// chosen without regard to the random bases the chance is below 4^-rounds, see Primality.cpp).
bool isPrime(const mpz_class &n);

/// Whether n is prime, proven.
bool isPrime(std::uint64_t n);

/// The least prime above n; 2 for every n below 2.
mpz_class nextPrime(const mpz_class &n);

} // namespace bignum
