// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmpxx.h>

namespace bignum {

/// The two halves of the Baillie-PSW test (R. Baillie, S. S. Wagstaff, "Lucas pseudoprimes", 1980),
/// for odd n > 3 and 1 < base < n - 1. A prime passes both.

/// The strong test to one base (G. L. Miller 1976, M. O. Rabin 1980).
bool passesStrongTest(const mpz_class &n, const mpz_class &base);

/// The strong Lucas test with Q = 1 and the least P > 2 for which P²-4 is no square modulo n
/// ("extra strong" without the condition on U: Z. Mo, J. P. Jones 1993; J. Grantham, "Frobenius
/// pseudoprimes", 2001).
bool passesLucasTest(const mpz_class &n);

/// The base P of that test, 0 if the search for it proves n composite.
unsigned long lucasParameter(const mpz_class &n);

} // namespace bignum
