// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/primes/OddSieve.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace bignum {

namespace {

constexpr std::array<std::uint32_t, 5> kPatternPrimes{3, 5, 7, 11, 13};
constexpr std::uint64_t kPeriod = 3 * 5 * 7 * 11 * 13;
constexpr std::uint64_t kMostPrimes = 1U << 20;

/// One period of the multiples of the first primes, which are the better part of the work,
/// and so much again that a segment can be copied from any place in it.
std::vector<std::uint8_t> makePattern()
{
    std::vector<std::uint8_t> pattern(kPeriod + OddSieve::kSpan, 0);
    for (const std::uint32_t p : kPatternPrimes)
        for (std::size_t i = p / 2; i < pattern.size(); i += p)
            pattern[i] = 1;
    return pattern;
}

/// The odd primes from 17 up to the limit.
std::vector<std::uint32_t> oddPrimes(std::uint32_t limit)
{
    std::vector<bool> composite(limit / 2 + 1, false);
    std::vector<std::uint32_t> primes;
    for (std::uint32_t p = 3; p <= limit; p += 2) {
        if (composite[p / 2])
            continue;
        if (p > kPatternPrimes.back())
            primes.push_back(p);
        for (std::uint32_t multiple = 3 * p; multiple <= limit; multiple += 2 * p)
            composite[multiple / 2] = true;
    }
    return primes;
}

/// Where the multiples of p begin that no smaller prime crosses out, counted from 2·index + 1.
std::uint64_t firstMultiple(std::uint64_t p, std::uint64_t index)
{
    const std::uint64_t square = p * p / 2;
    if (square >= index)
        return square - index;
    const std::uint64_t residue = (2 * index + 1) % p;
    const std::uint64_t missing = residue == 0 ? 0 : p - residue;
    return (missing % 2 == 0 ? missing : missing + p) / 2;
}

} // namespace

OddSieve::OddSieve(std::uint64_t index) : m_index(index), m_composite(kSpan) {}

void OddSieve::advance()
{
    if (m_begun) {
        m_index += kSpan;
        for (Crossing &crossing : m_crossings)
            crossing.next -= kSpan;
    }
    m_begun = true;
    takePrimesFor(2 * (m_index + kSpan));
    copyPattern();
    std::uint8_t *const composite = m_composite.data();
    for (auto &[prime, next] : m_crossings) {
        if (next >= kSpan)
            continue;
        auto i = static_cast<std::uint32_t>(next);
        for (; i < kSpan; i += prime)
            composite[i] = 1;
        next = i;
    }
}

void OddSieve::copyPattern()
{
    static const std::vector<std::uint8_t> pattern = makePattern();
    const auto *begin = pattern.data() + m_index % kPeriod;
    std::copy_n(begin, kSpan, m_composite.begin());
    if (m_index > kPatternPrimes.back() / 2)
        return;
    for (const std::uint32_t p : kPatternPrimes)
        if (p / 2 >= m_index)
            m_composite[static_cast<std::size_t>(p / 2 - m_index)] = 0;
    if (m_index == 0)
        m_composite[0] = 1;
}

/// Makes the primes reach the square root of the end of the segment, where they do not yet.
void OddSieve::takePrimesFor(std::uint64_t end)
{
    const auto root = static_cast<std::uint64_t>(std::sqrt(static_cast<double>(end))) + 1;
    const std::uint64_t needed = std::min(root, kMostPrimes);
    if (needed <= m_limit)
        return;
    m_limit = std::min(std::max(needed, 2 * m_limit), kMostPrimes);
    m_crossings.clear();
    for (const std::uint32_t p : oddPrimes(static_cast<std::uint32_t>(m_limit)))
        m_crossings.push_back({p, firstMultiple(p, m_index)});
}

} // namespace bignum
