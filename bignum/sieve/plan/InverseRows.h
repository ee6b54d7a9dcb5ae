#pragma once

#include "bignum/sieve/AlignedVector.h"
#include "bignum/sieve/plan/FactorBase.h"

#include <map>

namespace bignum::sieve {

/// The inverses of a prime q of the base modulo all primes of the base, kept for the next `a` that
/// q divides: the small numbers have few polynomials to an `a`.
class InverseRows
{
public:
    InverseRows(const FactorBase &base, std::size_t places) : m_base(base), m_places(places) {}

    /// By base index, for places() places; 0 at the index of q itself, below kFirstOddPrime, and
    /// from the end of the base on. Good until the next call.
    const std::uint32_t *row(std::uint32_t index);

private:
    const FactorBase &m_base;
    std::size_t m_places;
    std::map<std::uint32_t, AlignedVector<std::uint32_t>> m_rows;
};

} // namespace bignum::sieve
