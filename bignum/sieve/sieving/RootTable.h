// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/AlignedVector.h"
#include "bignum/sieve/plan/InverseRows.h"
#include "bignum/sieve/plan/Polynomial.h"

namespace bignum::sieve {

/// The positions at which the primes of the base divide the values of the polynomial at hand, for
/// one thread. Those of the primes of `a` mean nothing: their rare single root is not sieved.
class RootTable
{
public:
    explicit RootTable(const Plan &plan);

    /// Takes up the first polynomial of an `a`.
    void begin(const Polynomial &polynomial);

    /// The number of places: the size of the base, filled up with places that stand for no prime.
    std::size_t places() const { return m_moduli.size(); }

    /// The roots with the shifts that `step.row` names, to be moved by a kernel.
    Roots moving(std::size_t row);
    /// The roots with shifts of 0.
    Roots resting();

private:
    void findFirstRoots(bool liftedByA);

    const Plan &m_plan;
    AlignedVector<std::uint32_t> m_moduli;
    InverseRows m_inverseRows;
    AlignedVector<float> m_inverses;
    AlignedVector<std::uint32_t> m_first;
    AlignedVector<std::uint32_t> m_second;
    std::vector<AlignedVector<std::uint32_t>> m_shifts; ///< B[row] / a
    AlignedVector<std::uint32_t> m_noShift;
    AlignedVector<std::uint32_t> m_inverseOfA;
    AlignedVector<std::uint32_t> m_sum; ///< of all shifts
};

} // namespace bignum::sieve
