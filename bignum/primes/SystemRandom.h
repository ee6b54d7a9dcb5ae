// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmpxx.h>

namespace bignum {

/// A uniform number below 2^bits, from the random source of the operating system. Throws
/// std::system_error if that gives none.
mpz_class randomBits(std::size_t bits);

} // namespace bignum
