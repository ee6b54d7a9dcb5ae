// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/arithmetic/Montgomery64.h"
#include "bignum/arithmetic/Word.h"
#include "bignum/primes/Primality.h"
#include "bignum/primes/PrimalityTests.h"

#include <array>
#include <bit>

namespace bignum {

namespace {

bool passesStrongTestToBase2(std::uint64_t n)
{
    const Montgomery64 modulus(n);
    const std::uint64_t one = modulus.one();
    const std::uint64_t minusOne = n - one;
    const int twos = std::countr_zero(n - 1);
    const std::uint64_t odd = (n - 1) >> twos;

    std::uint64_t x = one;
    for (int bit = 64 - std::countl_zero(odd); bit-- > 0;) {
        x = modulus.multiply(x, x);
        if ((odd >> bit & 1) != 0)
            x = modulus.add(x, x);
    }
    if (x == one || x == minusOne)
        return true;
    for (int i = 1; i < twos; ++i) {
        x = modulus.multiply(x, x);
        if (x == minusOne)
            return true;
    }
    return false;
}

/// passesLucasTest for one word.
bool passesLucasTest64(std::uint64_t n)
{
    const unsigned long p = lucasParameter(fromUint64(n));
    if (p == 0)
        return false;

    const Montgomery64 modulus(n);
    const std::uint64_t two = modulus.add(modulus.one(), modulus.one());
    std::uint64_t first = two;
    for (unsigned long i = 2; i < p; ++i)
        first = modulus.add(first, modulus.one());

    // n + 1 may be 2^64: its odd part is taken from n/2 + 1 = (n + 1)/2.
    const std::uint64_t half = n / 2 + 1;
    const int twos = std::countr_zero(half) + 1;
    const std::uint64_t odd = half >> (twos - 1);
    std::uint64_t v = first;
    std::uint64_t next = modulus.subtract(modulus.multiply(first, first), two);
    for (int bit = 63 - std::countl_zero(odd); bit-- > 0;) {
        const std::uint64_t between = modulus.subtract(modulus.multiply(v, next), first);
        if ((odd >> bit & 1) != 0) {
            v = between;
            next = modulus.subtract(modulus.multiply(next, next), two);
        } else {
            next = between;
            v = modulus.subtract(modulus.multiply(v, v), two);
        }
    }

    if (v == two || v == n - two)
        return true;
    for (int i = 0; i + 1 < twos; ++i) {
        if (v == 0)
            return true;
        v = modulus.subtract(modulus.multiply(v, v), two);
    }
    return false;
}

} // namespace

bool isPrime(std::uint64_t n)
{
    constexpr std::array<std::uint64_t, 15> divisors{2,  3,  5,  7,  11, 13, 17, 19,
                                                     23, 29, 31, 37, 41, 43, 47};
    if (n < 2)
        return false;
    for (const std::uint64_t p : divisors)
        if (n % p == 0)
            return n == p;
    constexpr std::uint64_t nextDivisor = 53;
    if (n < nextDivisor * nextDivisor)
        return true;
    // No composite below 2^64 passes both: they were tried on the list of all pseudoprimes to base
    // 2 (J. Feitsma, W. Galway, "Tables of pseudoprimes and related data", 2013).
    return passesStrongTestToBase2(n) && passesLucasTest64(n);
}

} // namespace bignum
