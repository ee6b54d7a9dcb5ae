// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmpxx.h>

/// A product of two primes of about equal size, the next ones after numbers that `seed` gives.
inline mpz_class semiprime(unsigned bits, unsigned seed)
{
    const auto prime = [&](unsigned primeBits, unsigned salt) {
        mpz_class start = 3;
        mpz_ui_pow_ui(start.get_mpz_t(), 3, 400 + 7 * seed + salt);
        start = (mpz_class(3) << (primeBits - 2)) + start % (mpz_class(1) << (primeBits - 2));
        mpz_nextprime(start.get_mpz_t(), start.get_mpz_t());
        return start;
    };
    return prime(bits / 2, 1) * prime(bits - bits / 2, 2);
}
