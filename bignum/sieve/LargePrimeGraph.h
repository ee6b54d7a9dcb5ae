// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace bignum::sieve {

/// The large primes as vertices (1 among them) and the relations as edges between their two: a
/// relation with one large prime ends at 1, one without is a loop there. Each independent cycle is
/// a set of relations in which every large prime occurs an even number of times (A. K. Lenstra and
/// M. S. Manasse, "Factoring with two large primes", 1994).
class LargePrimeGraph
{
public:
    LargePrimeGraph();

    void addEdge(std::uint32_t p, std::uint32_t q);

    /// Edges that closed a cycle: counted by union-find as they come, without looking for the
    /// cycle itself.
    std::size_t cycles() const { return m_cycles; }
    std::size_t vertices() const { return m_primes.size(); }

    /// The vertex of a prime that was in an edge; 1 is vertex 0.
    std::uint32_t vertexOf(std::uint32_t prime) const { return m_slots[slotOf(prime)]; }

private:
    std::size_t slotOf(std::uint32_t prime) const;
    std::uint32_t findOrAdd(std::uint32_t prime);
    std::uint32_t rootOf(std::uint32_t vertex);
    void grow();

    // A table of our own, since a million primes in std::unordered_map take 50 MB.
    std::vector<std::uint32_t> m_slots;   ///< open addressing: vertices, kFree where there is none
    std::vector<std::uint32_t> m_primes;  ///< by vertex
    std::vector<std::uint32_t> m_parents; ///< by vertex: the forest of union-find
    std::size_t m_cycles = 0;
};

} // namespace bignum::sieve
