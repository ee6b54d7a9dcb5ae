// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <gmpxx.h>

namespace bignum::sieve {

/// The small square-free k, coprime to n and with kn = 1 mod 4, for which the values of the
/// polynomials of kn can be expected to hold most of small primes (D. E. Knuth and R. Schroeppel;
/// R. D. Silverman, "The multiple polynomial quadratic sieve", 1987). `n` is odd and positive.
std::uint32_t chooseMultiplier(const mpz_class &n);

} // namespace bignum::sieve
