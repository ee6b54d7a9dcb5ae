// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/primes/SystemRandom.h"

#include "bignum/primes/RandomBytes.h"

#include <vector>

namespace bignum {

mpz_class randomBits(std::size_t bits)
{
    std::vector<unsigned char> bytes((bits + 7) / 8);
    fillRandom(bytes);
    mpz_class value;
    mpz_import(value.get_mpz_t(), bytes.size(), 1, 1, 0, 0, bytes.data());
    mpz_fdiv_r_2exp(value.get_mpz_t(), value.get_mpz_t(), bits);
    return value;
}

} // namespace bignum
