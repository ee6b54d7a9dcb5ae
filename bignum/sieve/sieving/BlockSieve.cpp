#include "bignum/sieve/sieving/BlockSieve.h"

#include <algorithm>
#include <utility>

namespace bignum::sieve {

namespace {

/// From so many hits on a loop costs less than the jumps that a fixed number of hits saves.
constexpr std::uint32_t kManyHits = 8;

} // namespace

BlockSieve::BlockSieve(const Plan &plan, const BaseParts &parts)
    : m_start(parts.scale.start()),
      m_firstIndex(parts.sieved),
      m_first(parts.bucketed - parts.sieved),
      m_second(m_first.size()),
      m_bytes(kBlockSize + kLine)
{
    for (const LogRange &range : parts.blockwise)
        for (std::size_t i = range.begin; i < range.end; ++i) {
            const std::uint32_t p = plan.base.primes[i];
            m_primes.push_back(static_cast<std::uint16_t>(p));
            const std::uint32_t hits = std::min(kBlockSize / p, kManyHits);
            if (i == range.begin || m_groups.back().hits != hits)
                m_groups.push_back({i - m_firstIndex, 0, range.log, hits});
            m_groups.back().end = i + 1 - m_firstIndex;
        }
}

void BlockSieve::begin(const Roots &roots)
{
    for (std::size_t i = 0; i < m_primes.size(); ++i) {
        m_first[i] = static_cast<std::uint16_t>(roots.first[m_firstIndex + i]);
        m_second[i] = static_cast<std::uint16_t>(roots.second[m_firstIndex + i]);
    }
}

void BlockSieve::sieveMany(const Group &group)
{
    std::uint8_t *const bytes = m_bytes.data();
    const std::uint8_t log = group.log;
    for (std::size_t i = group.begin; i < group.end; ++i) {
        const std::uint32_t p = m_primes[i];
        std::uint32_t low = std::min(m_first[i], m_second[i]);
        std::uint32_t high = std::max(m_first[i], m_second[i]);
        for (; high + 3 * p < kBlockSize; low += 4 * p, high += 4 * p)
            for (std::uint32_t k = 0; k < 4; ++k) {
                bytes[low + k * p] = static_cast<std::uint8_t>(bytes[low + k * p] - log);
                bytes[high + k * p] = static_cast<std::uint8_t>(bytes[high + k * p] - log);
            }
        for (; high < kBlockSize; low += p, high += p) {
            bytes[low] = static_cast<std::uint8_t>(bytes[low] - log);
            bytes[high] = static_cast<std::uint8_t>(bytes[high] - log);
        }
        if (low < kBlockSize) {
            bytes[low] = static_cast<std::uint8_t>(bytes[low] - log);
            low += p;
        }
        m_first[i] = static_cast<std::uint16_t>(low - kBlockSize);
        m_second[i] = static_cast<std::uint16_t>(high - kBlockSize);
    }
}

/// The last hit, which may fall beyond the block, goes to an unread byte then: no jump has to be
/// foreseen. Different bytes serve different primes, so that none waits for another.
template <std::uint32_t Hits>
void BlockSieve::sieveFew(const Group &group)
{
    std::uint8_t *const bytes = m_bytes.data();
    const std::uint8_t log = group.log;
    const auto sieveRoot = [&](std::uint32_t at, std::uint32_t p) {
        for (std::uint32_t k = 0; k < Hits; ++k, at += p)
            bytes[at] = static_cast<std::uint8_t>(bytes[at] - log);
        const bool inside = at < kBlockSize;
        std::uint8_t &last = bytes[inside ? at : kBlockSize | (at & (kLine - 1))];
        last = static_cast<std::uint8_t>(last - log);
        return static_cast<std::uint16_t>(at - kBlockSize + (inside ? p : 0));
    };
    for (std::size_t i = group.begin; i < group.end; ++i) {
        const std::uint32_t p = m_primes[i];
        m_first[i] = sieveRoot(m_first[i], p);
        m_second[i] = sieveRoot(m_second[i], p);
    }
}

void BlockSieve::sieveNext()
{
    using Sieve = void (BlockSieve::*)(const Group &);
    static constexpr Sieve sieves[] = {
        &BlockSieve::sieveFew<0>, &BlockSieve::sieveFew<1>, &BlockSieve::sieveFew<2>,
        &BlockSieve::sieveFew<3>, &BlockSieve::sieveFew<4>, &BlockSieve::sieveFew<5>,
        &BlockSieve::sieveFew<6>, &BlockSieve::sieveFew<7>, &BlockSieve::sieveMany};
    std::fill_n(m_bytes.begin(), kBlockSize, m_start);
    for (const Group &group : m_groups)
        (this->*sieves[group.hits])(group);
}

} // namespace bignum::sieve
