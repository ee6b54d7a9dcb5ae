// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/primes/OddSieve.h"
#include "bignum/primes/Primality.h"
#include "bignum/primes/PrimeStream.h"

#include <algorithm>

namespace bignum {

class PrimeStream::Source
{
public:
    explicit Source(std::uint64_t first)
        : m_twoIsNext(first <= 2), m_sieve(first / 2), m_place(OddSieve::kSpan)
    {
    }

    /// Fills the block with the next primes, of one segment at most.
    void fill(std::vector<std::uint64_t> &block)
    {
        constexpr std::size_t most = 256; // the rest of a segment may be more than is asked for
        if (m_twoIsNext)
            block.push_back(2);
        m_twoIsNext = false;
        if (m_place == OddSieve::kSpan) {
            m_sieve.advance();
            m_place = 0;
        }
        for (; m_place < OddSieve::kSpan && block.size() < most; ++m_place) {
            const std::uint64_t number = 2 * (m_sieve.index() + m_place) + 1;
            if (m_sieve.composite()[m_place] == 0 &&
                (number < OddSieve::kProven || isPrime(number)))
                block.push_back(number);
        }
    }

private:
    bool m_twoIsNext;
    OddSieve m_sieve;
    std::size_t m_place; ///< in the segment; what is before it was handed over
};

PrimeStream::PrimeStream(std::uint64_t first, std::uint64_t)
    : m_source(std::make_unique<Source>(first))
{
}

PrimeStream::~PrimeStream() = default;

void PrimeStream::refill()
{
    m_block.clear();
    while (m_block.empty())
        m_source->fill(m_block);
    m_at = 0;
}

std::uint64_t countPrimesTo(std::uint64_t limit)
{
    if (limit < 2)
        return 0;
    std::uint64_t count = 1;
    const std::uint64_t end = (limit + 1) / 2; // the index of the first odd number above it
    OddSieve sieve(0);
    for (std::uint64_t begin = 0; begin < end; begin += OddSieve::kSpan) {
        sieve.advance();
        const std::uint64_t left = std::min<std::uint64_t>(end - begin, OddSieve::kSpan);
        const auto segment = sieve.composite().first(static_cast<std::size_t>(left));
        count += static_cast<std::uint64_t>(std::count(segment.begin(), segment.end(), 0));
    }
    return count;
}

} // namespace bignum
