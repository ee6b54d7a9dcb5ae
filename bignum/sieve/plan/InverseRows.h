#pragma once

#include "bignum/sieve/plan/FactorBase.h"

#include <map>

namespace bignum::sieve {

/// The inverses of a prime q of the base modulo all primes of the base, kept for every `a` that q
/// divides.
class InverseRows
{
public:
    explicit InverseRows(const FactorBase &base) : m_base(base) {}

    /// By base index; 0 at the index of q itself, and below kFirstOddPrime.
    const std::vector<std::uint32_t> &row(std::uint32_t index);

private:
    const FactorBase &m_base;
    std::map<std::uint32_t, std::vector<std::uint32_t>> m_rows;
};

} // namespace bignum::sieve
