// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/primes/RandomPrime.h"

#include "bignum/primes/Primality.h"
#include "bignum/primes/SmallPrimes.h"
#include "bignum/primes/SystemRandom.h"

namespace bignum {

mpz_class randomPrime(unsigned bits)
{
    // Each draw is independent of the others: walking on from a composite draw would favour the
    // primes that follow a long gap.
    for (;;) {
        mpz_class candidate = randomBits(bits);
        mpz_setbit(candidate.get_mpz_t(), bits - 1);
        if (bits > 2)
            mpz_setbit(candidate.get_mpz_t(), 0); // of two bits, the even 2 is a prime too
        if (bits > 64 && hasSmallFactor(candidate))
            continue;
        if (isPrime(candidate))
            return candidate;
    }
}

} // namespace bignum
