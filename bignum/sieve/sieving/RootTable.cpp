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
      m_inverseRows(plan.base),
      m_moduli(roundUp(plan.base.size()), kNoModulus),
      m_inverses(m_moduli.size()),
      m_first(m_moduli.size(), kNoRoot),
      m_second(m_moduli.size(), kNoRoot),
      m_noShift(m_moduli.size()),
      m_inverseOfA(plan.base.size()),
      m_sum(plan.base.size())
{
    for (std::size_t i = kFirstOddPrime; i < plan.base.size(); ++i)
        m_moduli[i] = plan.base.primes[i];
    for (std::size_t i = 0; i < places(); ++i)
        m_inverses[i] = 1.0F / static_cast<float>(m_moduli[i]);
}

void RootTable::begin(const Polynomial &polynomial)
{
    m_inverseOfA.assign(m_inverseOfA.size(), 1);
    m_sum.assign(m_sum.size(), 0);
    m_shifts.resize(polynomial.factors().size());
    for (std::size_t row = 0; row < m_shifts.size(); ++row)
        addRow(m_inverseRows.row(polynomial.factors()[row]), polynomial.gammas()[row], row);
    findFirstRoots(polynomial.liftedByA());
}

/// B[i] / a = gamma[i] / q[i]: no long number has to be reduced.
void RootTable::addRow(const std::vector<std::uint32_t> &inverses, std::uint32_t gamma,
                       std::size_t row)
{
    AlignedVector<std::uint32_t> &shifts = m_shifts[row];
    shifts.resize(places());
    for (std::size_t i = kFirstOddPrime; i < m_plan.base.size(); ++i) {
        const std::uint32_t p = m_moduli[i];
        shifts[i] = multiplyModulo(gamma, inverses[i], p);
        m_sum[i] = addModulo(m_sum[i], shifts[i], p);
        m_inverseOfA[i] = multiplyModulo(m_inverseOfA[i], inverses[i], p);
    }
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
