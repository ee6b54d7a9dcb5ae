// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/LargePrimeGraph.h"

#include <algorithm>
#include <limits>

namespace bignum::sieve {

namespace {

constexpr std::uint32_t kFree = std::numeric_limits<std::uint32_t>::max();
constexpr std::size_t kFirstSlots = 1024; // a power of two, as all later sizes are

/// Multiplication by 2^32 / golden ratio spreads neighbours over the table (D. E. Knuth, The Art of
/// Computer Programming, section 6.4).
std::size_t hashOf(std::uint32_t prime)
{
    return static_cast<std::size_t>(prime * std::uint64_t{0x9E3779B97F4A7C15} >> 32);
}

} // namespace

LargePrimeGraph::LargePrimeGraph() : m_slots(kFirstSlots, kFree)
{
    findOrAdd(1);
}

void LargePrimeGraph::addEdge(std::uint32_t p, std::uint32_t q)
{
    const std::uint32_t first = rootOf(findOrAdd(p));
    const std::uint32_t second = rootOf(findOrAdd(q));
    if (first == second)
        ++m_cycles;
    else
        m_parents[std::max(first, second)] = std::min(first, second);
}

std::size_t LargePrimeGraph::slotOf(std::uint32_t prime) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = hashOf(prime) & mask;
    while (m_slots[slot] != kFree && m_primes[m_slots[slot]] != prime)
        slot = (slot + 1) & mask;
    return slot;
}

std::uint32_t LargePrimeGraph::findOrAdd(std::uint32_t prime)
{
    const std::size_t slot = slotOf(prime);
    if (m_slots[slot] != kFree)
        return m_slots[slot];
    const auto vertex = static_cast<std::uint32_t>(m_primes.size());
    m_primes.push_back(prime);
    m_parents.push_back(vertex);
    m_slots[slot] = vertex;
    if (4 * m_primes.size() > 3 * m_slots.size())
        grow();
    return vertex;
}

void LargePrimeGraph::grow()
{
    m_slots.assign(2 * m_slots.size(), kFree);
    for (std::uint32_t vertex = 0; vertex < m_primes.size(); ++vertex)
        m_slots[slotOf(m_primes[vertex])] = vertex;
}

std::uint32_t LargePrimeGraph::rootOf(std::uint32_t vertex)
{
    // Every vertex passed is hung one step higher, which keeps the paths short.
    while (m_parents[vertex] != vertex) {
        m_parents[vertex] = m_parents[m_parents[vertex]];
        vertex = m_parents[vertex];
    }
    return vertex;
}

} // namespace bignum::sieve
