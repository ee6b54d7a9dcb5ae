// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace bignum {

/// The sieve of Eratosthenes over odd numbers, segment by segment (C. Bays and R. H. Hudson, "The
/// segmented sieve of Eratosthenes and primes in arithmetic progressions to 10^12", 1977), where
/// primesieve is missing. Primes above 2^20 are not sieved with: beyond 2^40 what stays may yet be
/// composite, and is for the caller to test.
class OddSieve
{
public:
    /// Odd numbers in a segment: its bytes fill the first cache.
    static constexpr std::size_t kSpan = std::size_t{1} << 15;
    /// Below, what stays is prime.
    static constexpr std::uint64_t kProven = std::uint64_t{1} << 40;

    /// Begins with the segment in which the odd number 2·index + 1 is the first.
    explicit OddSieve(std::uint64_t index);

    /// Sieves the next segment.
    void advance();

    /// The index of the segment's first number.
    std::uint64_t index() const { return m_index; }
    /// A byte for each number of the segment, 0 where it was not crossed out.
    std::span<const std::uint8_t> composite() const { return m_composite; }

private:
    struct Crossing
    {
        std::uint32_t prime;
        std::uint64_t next; ///< its next multiple, counted from the segment's first number
    };

    void copyPattern();
    void takePrimesFor(std::uint64_t end);

    std::uint64_t m_index;
    bool m_begun = false;
    std::uint64_t m_limit = 0; ///< primes below are sieved with
    std::vector<Crossing> m_crossings;
    std::vector<std::uint8_t> m_composite;
};

} // namespace bignum
