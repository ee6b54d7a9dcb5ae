// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/sieving/BlockSieve.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace bignum::sieve {

namespace {

/// Smaller primes are sieved one by one: a row of them would differ too much in its hits.
constexpr std::uint32_t kFirstInRow = 512;

/// The primes of a row: two vectors of the baseline, and the compiler knows vectors of this size
/// on every machine.
constexpr std::size_t kRow = 16;
using Lanes [[gnu::vector_size(kRow * 2)]] = std::uint16_t;
using WideLanes [[gnu::vector_size(kRow * 4)]] = std::uint32_t;

/// Bytes behind the block for the hits beyond it: many, since a byte that was written shortly
/// before has to be waited for.
constexpr std::uint16_t kUnread = 2048;

void subtract(std::uint8_t &byte, std::uint8_t log)
{
    byte = static_cast<std::uint8_t>(byte - log);
}

/// The same at all places of a row. Written out, since a loop would take as long as its work.
template <std::size_t... I>
[[gnu::always_inline]] inline void subtractAt(const Lanes &places, std::uint8_t *bytes,
                                              std::uint8_t log, std::index_sequence<I...> /*lanes*/)
{
    std::uint16_t at[kRow];
    std::memcpy(at, &places, sizeof at);
    (subtract(bytes[at[I]], log), ...);
}

void narrow(const std::uint32_t *roots, AlignedVector<std::uint16_t> &positions)
{
    std::size_t i = 0;
    for (; i + kRow <= positions.size(); i += kRow) {
        WideLanes wide;
        std::memcpy(&wide, roots + i, sizeof wide);
        const Lanes lanes = __builtin_convertvector(wide, Lanes);
        std::memcpy(&positions[i], &lanes, sizeof lanes);
    }
    for (; i < positions.size(); ++i)
        positions[i] = static_cast<std::uint16_t>(roots[i]);
}

} // namespace

BlockSieve::BlockSieve(const Plan &plan, const BaseParts &parts)
    : m_start(parts.scale.start()), m_firstIndex(parts.sieved), m_bytes(kBlockSize + kUnread)
{
    const auto &primes = plan.base.primes;
    const auto isSmall = [](std::uint32_t p) { return p < kFirstInRow; };
    const auto inRows =
        std::partition_point(primes.begin() + static_cast<std::ptrdiff_t>(parts.sieved),
                             primes.begin() + static_cast<std::ptrdiff_t>(parts.bucketed), isSmall);
    // So many primes are sieved one by one that the others fill their rows.
    std::size_t single = static_cast<std::size_t>(inRows - primes.begin()) - parts.sieved;
    single += (parts.bucketed - parts.sieved - single) % kRow;
    for (std::size_t i = parts.sieved; i < parts.bucketed; ++i)
        m_primes.push_back(static_cast<std::uint16_t>(primes[i]));
    for (std::size_t i = 0; i < single; ++i)
        m_single.push_back(rowOf(parts, i, i + 1));
    for (std::size_t i = single; i < m_primes.size(); i += kRow)
        m_rows.push_back(rowOf(parts, i, i + kRow));
    m_first.resize(m_primes.size());
    m_second.resize(m_primes.size());
}

BlockSieve::Row BlockSieve::rowOf(const BaseParts &parts, std::size_t begin, std::size_t end) const
{
    return {kBlockSize / m_primes[end - 1], kBlockSize / m_primes[begin] + 1,
            parts.scale.of(m_primes[(begin + end) / 2])};
}

void BlockSieve::begin(const Roots &roots)
{
    narrow(roots.first + m_firstIndex, m_first);
    narrow(roots.second + m_firstIndex, m_second);
}

void BlockSieve::sievePrime(std::size_t index, std::uint8_t log)
{
    std::uint8_t *const bytes = m_bytes.data();
    const std::uint32_t p = m_primes[index];
    std::uint32_t low = std::min(m_first[index], m_second[index]);
    std::uint32_t high = std::max(m_first[index], m_second[index]);
    for (; high + 3 * p < kBlockSize; low += 4 * p, high += 4 * p)
        for (std::uint32_t k = 0; k < 4; ++k) {
            subtract(bytes[low + k * p], log);
            subtract(bytes[high + k * p], log);
        }
    for (; high < kBlockSize; low += p, high += p) {
        subtract(bytes[low], log);
        subtract(bytes[high], log);
    }
    if (low < kBlockSize) {
        subtract(bytes[low], log);
        low += p;
    }
    m_first[index] = static_cast<std::uint16_t>(low - kBlockSize);
    m_second[index] = static_cast<std::uint16_t>(high - kBlockSize);
}

/// All primes of the row take a step at the same time. A step that would leave the block goes to an
/// unread byte: no jump has to be foreseen.
void BlockSieve::sieveLanes(std::uint16_t *positions, const std::uint16_t *primes, const Row &row)
{
    constexpr std::make_index_sequence<kRow> lanes;
    std::uint8_t *const bytes = m_bytes.data();
    const auto [leastHits, mostHits, log] = row;
    Lanes at;
    Lanes step;
    std::memcpy(&at, positions, sizeof at);
    std::memcpy(&step, primes, sizeof step);
    for (std::uint32_t hit = 0; hit < leastHits; ++hit, at += step)
        subtractAt(at, bytes, log, lanes);
    for (std::uint32_t hit = leastHits; hit < mostHits; ++hit) {
        const Lanes beyond = 0 - (at >> 15); // all ones from kBlockSize on
        subtractAt(at & ~(beyond & (kBlockSize - kUnread)), bytes, log, lanes);
        at += step & ~beyond;
    }
    at -= kBlockSize;
    std::memcpy(positions, &at, sizeof at);
}

void BlockSieve::sieveNext()
{
    std::fill_n(m_bytes.begin(), kBlockSize, m_start);
    for (std::size_t i = 0; i < m_single.size(); ++i)
        sievePrime(i, m_single[i].log);
    std::size_t i = m_single.size();
    for (const Row &row : m_rows) {
        sieveLanes(&m_first[i], &m_primes[i], row);
        sieveLanes(&m_second[i], &m_primes[i], row);
        i += kRow;
    }
}

} // namespace bignum::sieve
