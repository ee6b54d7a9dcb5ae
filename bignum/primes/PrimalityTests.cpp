// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/primes/PrimalityTests.h"

#include "bignum/arithmetic/MontgomeryModulus.h"

#include <algorithm>

namespace bignum {

bool passesStrongTest(const mpz_class &n, const mpz_class &base)
{
    const mpz_class minusOne = n - 1;
    const mp_bitcnt_t twos = mpz_scan1(minusOne.get_mpz_t(), 0);
    const mpz_class odd = minusOne >> twos;
    mpz_class x;
    mpz_powm(x.get_mpz_t(), base.get_mpz_t(), odd.get_mpz_t(), n.get_mpz_t());
    if (x == 1)
        return true;
    for (mp_bitcnt_t i = 0; i < twos; ++i) {
        if (x == minusOne)
            return true;
        x = x * x % n;
    }
    return false;
}

unsigned long lucasParameter(const mpz_class &n)
{
    constexpr unsigned long squareCheck = 20; // a square has no such P at all
    for (unsigned long p = 3;; ++p) {
        if (p == squareCheck && mpz_perfect_square_p(n.get_mpz_t()))
            return 0;
        const unsigned long discriminant = p * p - 4;
        const int symbol = mpz_ui_kronecker(discriminant, n.get_mpz_t());
        if (symbol < 0)
            return p;
        // A common factor, save for an n that divides the discriminant itself.
        if (symbol == 0 && n > p + 2)
            return 0;
    }
}

bool passesLucasTest(const mpz_class &n)
{
    const unsigned long p = lucasParameter(n);
    if (p == 0)
        return false;

    const mpz_class plusOne = n + 1;
    const mp_bitcnt_t twos = mpz_scan1(plusOne.get_mpz_t(), 0);
    MontgomeryModulus modulus(n);
    const auto first = modulus.fromInteger(p);
    const auto two = modulus.fromInteger(2);
    MontgomeryModulus::Residue zero(two.size(), 0);
    MontgomeryModulus::Residue minusTwo = zero;
    modulus.subtract(minusTwo, zero, two);

    // v = V(k) and next = V(k+1), while k grows to the odd part of n+1 bit by bit.
    auto v = first;
    auto next = zero;
    modulus.square(next, first);
    modulus.subtract(next, next, two);
    for (auto bit = static_cast<mp_bitcnt_t>(mpz_sizeinbase(plusOne.get_mpz_t(), 2)) - 1;
         bit-- > twos;) {
        const bool set = mpz_tstbit(plusOne.get_mpz_t(), bit) != 0;
        auto &between = set ? v : next; // V(2k+1)
        auto &doubled = set ? next : v; // V(2k+2) or V(2k)
        modulus.multiply(between, v, next);
        modulus.subtract(between, between, first);
        modulus.square(doubled, doubled);
        modulus.subtract(doubled, doubled, two);
    }

    if (v == two || v == minusTwo)
        return true;
    for (mp_bitcnt_t i = 0; i + 1 < twos; ++i) {
        if (v == zero)
            return true;
        modulus.square(v, v);
        modulus.subtract(v, v, two);
    }
    return false;
}

} // namespace bignum
