// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/sieving/BlockSieve.h"
#include "bignum/sieve/sieving/RelationFinder.h"

namespace bignum::sieve {

/// What a thread needs to sieve the polynomials of one `a` after the other, and the relations that
/// it found.
class FamilySieve
{
public:
    explicit FamilySieve(const Plan &plan);

    /// Takes up the polynomials of an `a`, given by the base indices of its primes.
    void begin(std::vector<std::uint32_t> factors);

    /// Sieves the next polynomial; false when there is none left.
    bool sieveNext();

    std::vector<Relation> &relations() { return m_finder.relations(); }

private:
    void sieve(const Roots &roots, bool down);

    const Plan &m_plan;
    BaseParts m_parts;
    RootTable m_roots;
    Buckets m_buckets;
    BlockSieve m_blockSieve;
    RelationFinder m_finder;
    std::optional<Polynomial> m_polynomial;
    std::uint32_t m_left = 0;
    bool m_first = true;
    std::vector<std::uint16_t> m_places;
};

} // namespace bignum::sieve
