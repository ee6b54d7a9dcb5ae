// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/sieving/Buckets.h"

#include <algorithm>

namespace bignum::sieve {

Buckets::Buckets(const Plan &plan, const BaseParts &parts)
    : m_kernels(*plan.kernels),
      m_parts(parts),
      m_interval(plan.interval()),
      m_blocks(plan.parameters.blocks)
{
    if (parts.slices.empty())
        return;
    // Each of the two roots of a prime meets a block once at most. Kernels read beyond the end.
    m_capacity = 2 * (parts.slices.back().end - parts.bucketed) + kLanes;
    m_storage.resize(m_blocks * m_capacity);
    m_ends.resize(m_blocks * (parts.slices.size() + 1));
    for (std::size_t block = 0; block < m_blocks; ++block)
        m_ends[block] = m_storage.data() + block * m_capacity;
}

void Buckets::fill(const Roots &roots, bool down)
{
    auto last = m_ends.begin();
    for (const LogRange &slice : m_parts.slices) {
        const auto next = last + static_cast<std::ptrdiff_t>(m_blocks);
        std::copy(last, next, next);
        m_kernels.moveAndFill(roots, slice.begin, slice.end, down, m_interval, &*next);
        last = next;
    }
}

std::span<const std::uint32_t> Buckets::entries(std::size_t slice, std::size_t block) const
{
    const std::size_t at = slice * m_blocks + block;
    return {m_ends[at], m_ends[at + m_blocks]};
}

void Buckets::apply(std::size_t block, std::uint8_t *bytes) const
{
    for (std::size_t slice = 0; slice < m_parts.slices.size(); ++slice) {
        const std::uint8_t log = m_parts.slices[slice].log;
        for (const std::uint32_t entry : entries(slice, block)) {
            std::uint8_t &byte = bytes[entry & 0xFFFF];
            byte = static_cast<std::uint8_t>(byte - log);
        }
    }
}

std::size_t Buckets::find(std::size_t block, std::uint32_t place,
                          std::span<std::uint32_t> found) const
{
    std::size_t count = 0;
    for (std::size_t slice = 0; slice < m_parts.slices.size(); ++slice) {
        const std::size_t more =
            m_kernels.findEntries(entries(slice, block), place, found.subspan(count));
        for (std::size_t i = count; i < count + more; ++i)
            found[i] += static_cast<std::uint32_t>(m_parts.slices[slice].begin);
        count += more;
    }
    return count;
}

} // namespace bignum::sieve
