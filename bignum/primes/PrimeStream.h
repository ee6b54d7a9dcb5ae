// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace bignum {

/// The primes from `first` on, in ascending order, below 2^63: from primesieve, or from a sieve of
/// our own where that is missing.
class PrimeStream
{
public:
    /// `last` tells how far the caller means to go; it may go further.
    PrimeStream(std::uint64_t first, std::uint64_t last);
    ~PrimeStream();
    PrimeStream(const PrimeStream &) = delete;
    PrimeStream &operator=(const PrimeStream &) = delete;

    std::uint64_t next()
    {
        if (m_at == m_block.size())
            refill();
        return m_block[m_at++];
    }

private:
    class Source;

    void refill();

    std::unique_ptr<Source> m_source;
    std::vector<std::uint64_t> m_block; ///< primes that were not handed over yet, from m_at on
    std::size_t m_at = 0;
};

/// The number of primes not above `limit` < 2^63.
std::uint64_t countPrimesTo(std::uint64_t limit);

} // namespace bignum
