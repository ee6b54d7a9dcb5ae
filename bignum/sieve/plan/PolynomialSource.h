// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/plan/Plan.h"

#include <mutex>
#include <optional>
#include <random>
#include <set>

namespace bignum::sieve {

/// Chooses the leading coefficients `a` of the polynomials, each a product of different primes of
/// the factor base and as near to the best size as they allow. None is handed out twice, to
/// whatever thread.
class PolynomialSource
{
public:
    explicit PolynomialSource(const Plan &plan);

    /// The next `a`, as ascending indices into the factor base; nothing once no more can be found.
    std::optional<std::vector<std::uint32_t>> next();

private:
    using Indices = std::vector<std::uint32_t>;

    std::ptrdiff_t countBelow(double logarithm) const;
    double logOf(std::uint32_t candidate) const;
    Indices drawAllButOne();
    std::optional<std::uint32_t> lastFor(const Indices &others) const;

    const Plan &m_plan;
    double m_target;       ///< logarithm of the best `a`
    std::size_t m_factors; ///< of an `a`
    Indices m_candidates;  ///< base indices of the primes that may divide an `a`
    std::uint32_t m_first; ///< the window of candidates from which all but one factor are drawn
    std::uint32_t m_last;
    std::set<Indices> m_given;
    std::mt19937 m_random;
    std::mutex m_mutex;
};

} // namespace bignum::sieve
