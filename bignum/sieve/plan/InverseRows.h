// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/AlignedVector.h"
#include "bignum/sieve/plan/FactorBase.h"

namespace bignum::sieve {

/// The inverses of a prime q of the base modulo all primes of the base, kept for the next `a` that
/// q divides: the small numbers have few polynomials to an `a`.
class InverseRows
{
public:
    InverseRows(const FactorBase &base, std::size_t places);

    /// By base index, for places() places; 0 at the index of q itself, below kFirstOddPrime, and
    /// from the end of the base on. Good until the next call.
    const std::uint32_t *row(std::uint32_t index);

private:
    struct Row
    {
        std::uint32_t index; ///< of q; 0 for none
        AlignedVector<std::uint32_t> inverses;
    };

    Row &freeRow();

    const FactorBase &m_base;
    std::size_t m_places;
    std::size_t m_most;     ///< rows that are kept
    std::size_t m_next = 0; ///< the one to be given up next
    std::vector<Row> m_rows;
};

} // namespace bignum::sieve
