// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/sieving/RootTable.h"

#include "bignum/sieve/plan/SmallModulus.h"

namespace bignum::sieve {

namespace {

std::size_t roundUp(std::size_t size)
{
    return (size + kLanes - 1) / kLanes * kLanes;
}

std::uint32_t addModulo(std::uint32_t a, std::uint32_t b, std::uint32_t p)
{
    return a + b >= p ? a + b - p : a + b;
}

std::uint32_t halfModulo(std::uint32_t a, std::uint32_t p)
{
    return a % 2 == 0 ? a / 2 : (a + p) / 2;
}

} // namespace

RootTable::RootTable(const Plan &plan)
    : m_plan(plan),
      m_moduli(roundUp(plan.base.size()), kNoModulus),
      m_inverseRows(plan.base, m_moduli.size()),
      m_inverses(m_moduli.size()),
      m_first(m_moduli.size(), kNoRoot),
      m_second(m_moduli.size(), kNoRoot),
      m_noShift(m_moduli.size()),
      m_inverseOfA(m_moduli.size()),
      m_sum(m_moduli.size())
{
    for (std::size_t i = kFirstOddPrime; i < plan.base.size(); ++i)
        m_moduli[i] = plan.base.primes[i];
    for (std::size_t i = 0; i < places(); ++i)
        m_inverses[i] = 1.0F / static_cast<float>(m_moduli[i]);
}

void RootTable::begin(const Polynomial &polynomial)
{
    m_inverseOfA.assign(places(), 1);
    m_sum.assign(places(), 0);
    m_shifts.resize(polynomial.factors().size());
    for (std::size_t i = 0; i < m_shifts.size(); ++i) {
        m_shifts[i].resize(places());
        // B[i] / a = gamma[i] / q[i]: no long number has to be reduced.
        const FamilyRow row{
            m_moduli.data(),        m_inverses.data(),  m_inverseRows.row(polynomial.factors()[i]),
            polynomial.gammas()[i], m_shifts[i].data(), m_sum.data(),
            m_inverseOfA.data()};
        m_plan.kernels->addRow(row, places());
    }
    findFirstRoots(polynomial.liftedByA());
}

/// x = (+-sqrt(kn) - b) / 2a, where b / a is the sum of the shifts, and one more if lifted.
void RootTable::findFirstRoots(bool liftedByA)
{
    for (std::size_t i = kFirstOddPrime; i < m_plan.base.size(); ++i) {
        const std::uint32_t p = m_moduli[i];
        const std::uint32_t root = multiplyModulo(m_plan.base.roots[i], m_inverseOfA[i], p);
        const std::uint32_t b = addModulo(m_sum[i], liftedByA ? 1 : 0, p);
        const std::uint32_t zero = m_plan.reach() % p; // the position of x = 0
        m_first[i] = addModulo(halfModulo(subtractModulo(root, b, p), p), zero, p);
        m_second[i] =
            addModulo(halfModulo(subtractModulo(0, addModulo(root, b, p), p), p), zero, p);
    }
}

Roots RootTable::moving(std::size_t row)
{
    return {m_moduli.data(), m_inverses.data(), m_first.data(), m_second.data(),
            m_shifts[row].data()};
}

Roots RootTable::resting()
{
    return {m_moduli.data(), m_inverses.data(), m_first.data(), m_second.data(), m_noShift.data()};
}

} // namespace bignum::sieve
