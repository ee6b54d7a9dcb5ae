// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/primes/Primality.h"

#include "bignum/arithmetic/Word.h"
#include "bignum/primes/PrimalityTests.h"
#include "bignum/primes/SmallPrimes.h"
#include "bignum/primes/SystemRandom.h"

#include <numeric>

namespace bignum {

namespace {

constexpr std::size_t kWordBits = 64;

bool fitsWord(const mpz_class &n)
{
    return mpz_sizeinbase(n.get_mpz_t(), 2) <= kWordBits;
}

/// A uniform number in 2..n-2.
mpz_class randomBase(const mpz_class &n)
{
    // 64 bits more than n has make the bias of the reduction negligible.
    const mpz_class drawn = randomBits(mpz_sizeinbase(n.get_mpz_t(), 2) + kWordBits);
    return drawn % (n - 3) + 2;
}

} // namespace

bool isPrime(const mpz_class &n)
{
    if (n < 2)
        return false;
    if (fitsWord(n))
        return isPrime(toUint64(n));

    const mp_limb_t leastPrimes = smallPrimes().groups.front().product;
    if (mpz_even_p(n.get_mpz_t()) || std::gcd(limbModulo(n, leastPrimes), leastPrimes) != 1)
        return false;
    return passesStrongTest(n, 2) && passesLucasTest(n) && passesStrongTest(n, randomBase(n));
}

} // namespace bignum
