// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmpxx.h>
#include <vector>

/// Numbers to measure with: random, but the same in every run.
class Samples
{
public:
    Samples();

    /// Primes of exactly `bits` bits.
    std::vector<mpz_class> primes(unsigned bits, int count);
    /// Products of two primes of half the bits.
    std::vector<mpz_class> composites(unsigned bits, int count);
    /// Numbers of exactly `digits` digits.
    std::vector<mpz_class> numbers(unsigned digits, int count);
    /// Numbers of exactly `digits` digits that are a prime of `factorDigits` digits times a prime.
    std::vector<mpz_class> products(unsigned digits, unsigned factorDigits, int count);

private:
    mpz_class numberOfBits(unsigned bits);
    mpz_class numberOfDigits(unsigned digits);

    gmp_randclass m_random;
};
