// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/arithmetic/Word.h"
#include "bignum/factoring/PollardRho.h"
#include "bignum/primes/Primality.h"
#include "bignum/sieve/RelationStore.h"

#include <gmpxx.h>
#include <vector>

/// Relations of a number n as the definition has them, from the squares next above n.
struct NaiveRelations
{
    /// Searches `values` squares for products of the first `baseSize` primes modulo which n is a
    /// square, and at most two primes below `largeBound`.
    NaiveRelations(const mpz_class &number, std::size_t baseSize, unsigned long values,
                   std::uint32_t largeBound)
        : n(number), primes{1}, store(number)
    {
        for (mpz_class p = 2; primes.size() <= baseSize;
             mpz_nextprime(p.get_mpz_t(), p.get_mpz_t()))
            if (p == 2 || mpz_legendre(n.get_mpz_t(), p.get_mpz_t()) >= 0)
                primes.push_back(static_cast<std::uint32_t>(p.get_ui()));
        const mpz_class start = sqrt(n) - values / 2;
        for (unsigned long i = 0; i < values; ++i)
            tryRoot(start + i, largeBound);
        store.add(relations);
    }

    mpz_class n;
    std::vector<std::uint32_t> primes; ///< entry 0 stands for -1
    std::vector<bignum::sieve::Relation> relations;
    bignum::sieve::RelationStore store;

private:
    void tryRoot(const mpz_class &root, std::uint32_t largeBound)
    {
        bignum::sieve::Relation relation{root, {}, {1, 1}};
        mpz_class rest = root * root - n;
        if (rest == 0)
            return;
        if (rest < 0)
            relation.factors.push_back(0);
        rest = abs(rest);
        for (std::uint32_t i = 1; i < primes.size(); ++i)
            for (; mpz_divisible_ui_p(rest.get_mpz_t(), primes[i]) != 0; rest /= primes[i])
                relation.factors.push_back(i);
        if (rest >= largeBound) {
            if (rest >= mpz_class(largeBound) * largeBound || bignum::isPrime(rest))
                return;
            relation.large[1] = bignum::rhoFactor(bignum::toUint64(rest));
            rest /= bignum::fromUint64(relation.large[1]);
        }
        relation.large[0] = bignum::toUint64(rest);
        if (relation.large[0] < largeBound && relation.large[1] < largeBound)
            relations.push_back(relation);
    }
};
