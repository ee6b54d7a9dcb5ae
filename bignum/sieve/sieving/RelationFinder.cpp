// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/sieving/RelationFinder.h"

#include "bignum/arithmetic/Word.h"

#include <cmath>

namespace bignum::sieve {

namespace {

/// The logarithms in the bytes are rounded: a candidate may be so many bits better than they say.
constexpr double kRoundingBits = 3;

} // namespace

RelationFinder::RelationFinder(const Plan &plan, const BaseParts &parts, const Buckets &buckets)
    : m_plan(plan),
      m_parts(parts),
      m_buckets(buckets),
      m_bounds{plan.largestPrime(), plan.largePrimeBound(), plan.cofactorBound()},
      m_cofactorBits(std::log2(plan.cofactorBound()))
{
}

void RelationFinder::divideBy(std::uint32_t index)
{
    const std::uint32_t p = m_plan.base.primes[index];
    while (mpz_divisible_ui_p(m_value.get_mpz_t(), p) != 0) {
        mpz_divexact_ui(m_value.get_mpz_t(), m_value.get_mpz_t(), p);
        m_factors.push_back(index);
    }
}

void RelationFinder::divideRange(const Roots &roots, std::size_t begin, std::size_t end,
                                 std::uint32_t position)
{
    const std::size_t count = m_plan.kernels->findRoots(roots, begin, end, position, m_found);
    for (std::size_t i = 0; i < count; ++i)
        divideBy(m_found[i]);
}

/// The sign, 4a, the twos, and the primes that were not sieved.
void RelationFinder::divideFirst(const Polynomial &polynomial, const Roots &roots, std::int64_t x)
{
    m_factors.assign(2, 1);
    m_factors.insert(m_factors.end(), polynomial.factors().begin(), polynomial.factors().end());
    polynomial.valueAt(m_value, x);
    if (m_value < 0) {
        m_factors.push_back(0);
        m_value = -m_value;
    }
    if (m_value == 0)
        return;
    const mp_bitcnt_t twos = mpz_scan1(m_value.get_mpz_t(), 0);
    m_factors.insert(m_factors.end(), twos, 1);
    m_value >>= twos;
    const auto position = static_cast<std::uint32_t>(x + m_plan.reach());
    divideRange(roots, kFirstOddPrime, m_parts.sieved, position);
}

void RelationFinder::tryPlace(const Polynomial &polynomial, const Roots &roots, std::size_t block,
                              std::uint32_t place, std::uint8_t byte)
{
    const auto position = static_cast<std::uint32_t>(block * kBlockSize) + place;
    const std::int64_t x = std::int64_t{position} - m_plan.reach();
    divideFirst(polynomial, roots, x);
    const auto bits = static_cast<double>(mpz_sizeinbase(m_value.get_mpz_t(), 2));
    if (m_value == 0 || bits - m_parts.scale.bitsSieved(byte) > m_cofactorBits + kRoundingBits)
        return;
    divideRange(roots, m_parts.sieved, m_parts.bucketed, position);
    const std::size_t count = m_buckets.find(block, place, m_found);
    for (std::size_t i = 0; i < count; ++i)
        divideBy(m_found[i]);
    for (const std::uint32_t factor : polynomial.factors())
        divideBy(factor);
    keep(polynomial, x);
}

void RelationFinder::keep(const Polynomial &polynomial, std::int64_t x)
{
    if (mpz_sizeinbase(m_value.get_mpz_t(), 2) > 64)
        return;
    const auto large = largePrimes(toUint64(m_value), m_bounds);
    if (!large)
        return;
    Relation &relation = m_relations.emplace_back();
    polynomial.rootAt(relation.root, x);
    relation.factors = m_factors;
    relation.large = *large;
}

} // namespace bignum::sieve
