// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/primes/PrimeStream.h"

#include <primesieve.hpp>

namespace bignum {

class PrimeStream::Source
{
public:
    Source(std::uint64_t first, std::uint64_t last) : m_primes(first, last) {}

    std::uint64_t next() { return m_primes.next_prime(); }

private:
    primesieve::iterator m_primes;
};

PrimeStream::PrimeStream(std::uint64_t first, std::uint64_t last)
    : m_source(std::make_unique<Source>(first, last))
{
}

PrimeStream::~PrimeStream() = default;

void PrimeStream::refill()
{
    constexpr std::size_t most = 256;
    m_block.resize(most);
    for (std::uint64_t &prime : m_block)
        prime = m_source->next();
    m_at = 0;
}

std::uint64_t countPrimesTo(std::uint64_t limit)
{
    return primesieve::count_primes(0, limit);
}

} // namespace bignum
