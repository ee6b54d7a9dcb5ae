// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmpxx.h>

namespace bignum {

/// A prime of exactly `bits` bits (at least 2), every one with the same chance, from random bits of
/// the operating system. Throws std::system_error if that gives none.
mpz_class randomPrime(unsigned bits);

} // namespace bignum
