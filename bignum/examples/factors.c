/* SPDX-License-Identifier: GPL-3.0-or-later */
/*
 * The prime factors of a number, each printed as soon as it is known, and what it was found by.
 *
 *     cc factors.c $(pkg-config --cflags --libs bignum) -o factors
 *     ./factors 340282366920938463463374607431768211457
 */
#include <bignum/bignum.h>

#include <stdio.h>

static const char *name_of(int32_t method)
{
    switch (method) {
    case BIGNUM_TRIAL_DIVISION:
        return "trial division";
    case BIGNUM_RHO:
        return "Pollard's rho method";
    case BIGNUM_CURVE:
        return "an elliptic curve";
    case BIGNUM_SIEVE:
        return "the quadratic sieve";
    case BIGNUM_ROOT:
        return "taking a root";
    default:
        return "nothing: it is the number itself";
    }
}

/* The context is a counter of the factors. Nonzero asks for the next one. */
static int32_t print_factor(const struct BignumFactor *factor, void *context)
{
    int *found = context;
    ++*found;
    printf("%s^%lld, %s, found by %s\n", factor->base, (long long)factor->exponent,
           factor->isPrime ? "prime" : "composite", name_of(factor->method));
    return 1;
}

int main(int argc, char *argv[])
{
    int found = 0;
    int32_t end;

    if (argc != 2) {
        fprintf(stderr, "Usage: %s NUMBER\n", argv[0]);
        return 2;
    }
    InitBignum(100);
    end = FactorsAsFound(argv[1], print_factor, &found);
    EndBignum();

    if (end == BIGNUM_NO_NUMBER) {
        fprintf(stderr, "%s is no number.\n", argv[1]);
        return 1;
    }
    printf("%d different factors%s\n", found,
           end == BIGNUM_ALL_PRIMES ? "" : ", not all of them prime");
    return end == BIGNUM_ALL_PRIMES ? 0 : 1;
}
