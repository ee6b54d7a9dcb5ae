/* SPDX-License-Identifier: GPL-3.0-or-later */
/* That this compiles as C with all warnings on is the test of the header. */
#include "bignum/bignum.h"

int32_t addUp(const uint64_t *primes, int64_t count, void *context);
int32_t addExponent(const struct BignumFactor *factor, void *context);
int32_t sumOfPrimesUpTo10(void);
int32_t exponentsOf360(void);

int32_t addUp(const uint64_t *primes, int64_t count, void *context)
{
    int32_t *sum = context;
    for (int64_t i = 0; i < count; ++i)
        *sum += (int32_t)primes[i];
    return 1;
}

int32_t sumOfPrimesUpTo10(void)
{
    int32_t sum = 0;
    return PrimesBetween(0, 10, addUp, &sum) == 1 ? sum : -1;
}

int32_t addExponent(const struct BignumFactor *factor, void *context)
{
    int32_t *sum = context;
    *sum += (int32_t)factor->exponent;
    return factor->isPrime;
}

int32_t exponentsOf360(void)
{
    int32_t sum = 0;
    return FactorsAsFound("360", addExponent, &sum) == BIGNUM_ALL_PRIMES ? sum : -1;
}
