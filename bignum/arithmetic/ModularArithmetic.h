// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmpxx.h>
#include <optional>
#include <vector>

namespace bignum {

/// gcd = gcd(a, b) >= 0 and the least coefficients with a x + b y = gcd.
struct ExtendedGcd
{
    mpz_class gcd;
    mpz_class x;
    mpz_class y;
};

/// x = remainder modulo |modulus|.
struct Congruence
{
    mpz_class remainder;
    mpz_class modulus;
};

ExtendedGcd extendedGcd(const mpz_class &a, const mpz_class &b);

/// The remainder of a in [0, |m|); nothing for m = 0.
std::optional<mpz_class> modulo(const mpz_class &a, const mpz_class &m);

/// The inverse of a in [0, |n|); nothing where there is none.
std::optional<mpz_class> inverse(const mpz_class &a, const mpz_class &n);

/// base^exponent in [0, |modulus|), a negative exponent by way of the inverse; nothing for a
/// modulus 0, a base without inverse, and what would take minutes (an exponent of more than 4096
/// bits with a modulus of more than 8191 digits).
std::optional<mpz_class> powerMod(const mpz_class &base, const mpz_class &exponent,
                                  const mpz_class &modulus);

/// The least non-negative solution of all congruences, whose moduli need not be coprime; nothing
/// if they contradict each other, if there are none, if a modulus is 0, and if the least common
/// multiple of the moduli exceeds kMaxInputDigits digits.
std::optional<mpz_class> chineseRemainder(const std::vector<Congruence> &congruences);

} // namespace bignum
