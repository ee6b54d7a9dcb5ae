// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/arithmetic/Word.h"
#include "bignum/primes/Primality.h"
#include "bignum/primes/PrimeStream.h"
#include "bignum/primes/SmallPrimes.h"

#include <algorithm>
#include <vector>

namespace bignum {

namespace {

/// The largest prime of the sieve.
constexpr std::uint64_t kMostBound = 1U << 24;
constexpr bool kPairsFit = GMP_NUMB_BITS >= 50;

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
            const mp_limb_t residue = limbModulo(m_start, group.product);
            for (std::uint32_t i = 0; i < group.count; ++i) {
                const std::uint64_t p = table.primes[group.first + i];
                crossOut(p, residue % p);
            }
        }
        crossOutBetween(kSmallPrimeLimit, bound);
    }

private:
    /// Takes the larger primes two at a time where they fit a limb together.
    void crossOutBetween(std::uint64_t low, std::uint64_t high)
    {
        if (high <= low)
            return;
        PrimeStream primes(low, high);
        for (std::uint64_t p = primes.next(); p <= high; p = primes.next()) {
            const std::uint64_t q = kPairsFit ? primes.next() : 1;
            const mp_limb_t residue = limbModulo(m_start, static_cast<mp_limb_t>(p * q));
            crossOut(p, residue % p);
            if (kPairsFit)
                crossOut(q, residue % q);
        }
    }

    /// `residue` is that of the start modulo p.
    void crossOut(std::uint64_t p, std::uint64_t residue)
    {
        // start + 2 i = 0 (mod p): i is half of -residue, made even by adding the odd p.
        const std::uint64_t negative = residue == 0 ? 0 : p - residue;
        // Both have at most 25 bits.
        auto i = static_cast<std::size_t>((negative % 2 == 0 ? negative : negative + p) / 2);
        for (; i < m_composite.size(); i += static_cast<std::size_t>(p))
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
    return std::clamp<std::uint64_t>(bits * bits / 4, 512, kMostBound);
}

} // namespace

mpz_class nextPrime(const mpz_class &n)
{
    constexpr std::uint64_t largestWordPrime = 18446744073709551557U;
    if (n < fromUint64(largestWordPrime))
        return fromUint64(nextPrimeInWord(n < 2 ? 0 : toUint64(n)));

    const auto bits = static_cast<mp_bitcnt_t>(mpz_sizeinbase(n.get_mpz_t(), 2));
    const mp_bitcnt_t count = 4 * bits; // reaches over a dozen times the average gap
    mpz_class start = n % 2 == 0 ? n + 1 : n + 2;
    for (;; start += 2 * count) {
        OddInterval interval(start, count);
        interval.crossOutBelow(sieveBound(bits));
        for (mp_bitcnt_t i = 0; i < count; ++i) {
            if (interval.isComposite(i))
                continue;
            const mpz_class candidate = start + 2 * i;
            if (isPrime(candidate))
                return candidate;
        }
    }
}

} // namespace bignum
