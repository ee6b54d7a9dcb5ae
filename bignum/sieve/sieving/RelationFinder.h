// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/Relation.h"
#include "bignum/sieve/sieving/Buckets.h"
#include "bignum/sieve/sieving/Cofactor.h"
#include "bignum/sieve/sieving/RootTable.h"

#include <array>

namespace bignum::sieve {

/// Divides the values at the candidates of a block and keeps those that make a relation. Which
/// primes divide is read off the roots and the buckets: division serves to count how often.
class RelationFinder
{
public:
    RelationFinder(const Plan &plan, const BaseParts &parts, const Buckets &buckets);

    /// Tries the value at a place of a block, whose byte fell to `byte`.
    void tryPlace(const Polynomial &polynomial, const Roots &roots, std::size_t block,
                  std::uint32_t place, std::uint8_t byte);

    /// The relations found since they were last taken away.
    std::vector<Relation> &relations() { return m_relations; }

private:
    void divideRange(const Roots &roots, std::size_t begin, std::size_t end,
                     std::uint32_t position);
    void divideBy(std::uint32_t index);
    void divideFirst(const Polynomial &polynomial, const Roots &roots, std::int64_t x);
    void keep(const Polynomial &polynomial, std::int64_t x);

    const Plan &m_plan;
    const BaseParts &m_parts;
    const Buckets &m_buckets;
    CofactorBounds m_bounds;
    double m_cofactorBits;
    mpz_class m_value; ///< what is left of it
    std::vector<std::uint32_t> m_factors;
    std::array<std::uint32_t, 256> m_found{};
    std::vector<Relation> m_relations;
};

} // namespace bignum::sieve
