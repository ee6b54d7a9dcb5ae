// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/sieving/FamilySieve.h"

namespace bignum::sieve {

FamilySieve::FamilySieve(const Plan &plan)
    : m_plan(plan),
      m_parts(plan),
      m_roots(plan),
      m_buckets(plan, m_parts),
      m_blockSieve(plan, m_parts),
      m_finder(plan, m_parts, m_buckets),
      m_places(kBlockSize)
{
}

void FamilySieve::begin(std::vector<std::uint32_t> factors)
{
    m_polynomial.emplace(m_plan, std::move(factors));
    m_roots.begin(*m_polynomial);
    m_left = m_polynomial->count();
    m_first = true;
}

bool FamilySieve::sieveNext()
{
    if (m_left == 0)
        return false;
    --m_left;
    if (m_first) {
        m_first = false;
        sieve(m_roots.resting(), false);
    } else {
        const Step step = m_polynomial->advance();
        sieve(m_roots.moving(step.row), step.down);
    }
    return true;
}

void FamilySieve::sieve(const Roots &roots, bool down)
{
    const std::size_t unbucketed = m_parts.slices.empty() ? m_roots.places() : m_parts.bucketed;
    m_plan.kernels->move(roots, 0, unbucketed, down);
    m_buckets.fill(roots, down);
    m_blockSieve.begin(roots);
    for (std::size_t block = 0; block < m_plan.parameters.blocks; ++block) {
        m_blockSieve.sieveNext();
        std::uint8_t *const bytes = m_blockSieve.bytes();
        m_buckets.apply(block, bytes);
        const std::size_t count = m_plan.kernels->findHighBytes(bytes, m_places.data());
        for (std::size_t i = 0; i < count; ++i)
            m_finder.tryPlace(*m_polynomial, roots, block, m_places[i], bytes[m_places[i]]);
    }
}

} // namespace bignum::sieve
