// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/primes/Primality.h"
#include "bignum/primes/SmallPrimes.h"

#include <algorithm>
#include <primesieve.hpp>
#include <vector>

namespace bignum {

namespace {

/// Odd numbers from `start` on; those with a factor below the sieve's bound are crossed out.
class OddInterval
{
public:
    OddInterval(const mpz_class &start, std::size_t count)
        : m_start(start), m_composite(count, false)
    {
    }

    bool isComposite(std::size_t index) const { return m_composite[index]; }

    void crossOutBelow(std::uint64_t bound)
    {
        const SmallPrimes &table = smallPrimes();
        for (const PrimeGroup &group : table.groups) {
            if (table.primes[group.first] > bound)
                return;
            const mp_limb_t residue = mpz_fdiv_ui(m_start.get_mpz_t(), group.product);
            for (std::uint32_t i = 0; i < group.count; ++i) {
                const std::uint64_t p = table.primes[group.first + i];
                crossOut(p, residue % p);
            }
        }
        crossOutBetween(kSmallPrimeLimit, bound);
    }

private:
    /// Takes the larger primes two at a time: together they fit a limb.
    void crossOutBetween(std::uint64_t low, std::uint64_t high)
    {
        if (high <= low)
            return;
        primesieve::iterator primes(low, high);
        for (std::uint64_t p = primes.next_prime(); p <= high; p = primes.next_prime()) {
            const std::uint64_t q = primes.next_prime();
            const mp_limb_t residue = mpz_fdiv_ui(m_start.get_mpz_t(), p * q);
            crossOut(p, residue % p);
            crossOut(q, residue % q);
        }
    }

    /// `residue` is that of the start modulo p.
    void crossOut(std::uint64_t p, std::uint64_t residue)
    {
        // start + 2 i = 0 (mod p): i is half of -residue, made even by adding the odd p.
        const std::uint64_t negative = residue == 0 ? 0 : p - residue;
        std::uint64_t i = (negative % 2 == 0 ? negative : negative + p) / 2;
        for (; i < m_composite.size(); i += p)
            m_composite[i] = true;
    }

    mpz_class m_start;
    std::vector<bool> m_composite;
};

std::uint64_t nextPrimeInWord(std::uint64_t n)
{
    if (n < 2)
        return 2;
    for (n += 1 + n % 2; !isPrime(n);)
        n += 2;
    return n;
}

/// The bound of the sieve where its cost and that of the tests it saves grow alike (measured).
std::uint64_t sieveBound(std::size_t bits)
{
    return std::clamp<std::uint64_t>(bits * bits / 4, 512, 1U << 24);
}

} // namespace

mpz_class nextPrime(const mpz_class &n)
{
    constexpr std::uint64_t largestWordPrime = 18446744073709551557U;
    if (n < mpz_class(largestWordPrime))
        return mpz_class(nextPrimeInWord(n < 2 ? 0 : n.get_ui()));

    const std::size_t bits = mpz_sizeinbase(n.get_mpz_t(), 2);
    const std::size_t count = 4 * bits; // reaches over a dozen times the average gap
    mpz_class start = n % 2 == 0 ? n + 1 : n + 2;
    for (;; start += mpz_class(2 * count)) {
        OddInterval interval(start, count);
        interval.crossOutBelow(sieveBound(bits));
        for (std::size_t i = 0; i < count; ++i) {
            if (interval.isComposite(i))
                continue;
            const mpz_class candidate = start + mpz_class(2 * i);
            if (isPrime(candidate))
                return candidate;
        }
    }
}

} // namespace bignum
