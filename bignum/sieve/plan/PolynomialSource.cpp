// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/plan/PolynomialSource.h"

#include <algorithm>
#include <cmath>

namespace bignum::sieve {

namespace {

/// The best size of the factors: a smaller one is missed by the values that it could divide, and
/// more of larger ones make fewer polynomials of each `a`.
constexpr double kBestFactor = 2000;
/// The largest prime of a small base must not be a limit to the choice.
constexpr double kShareOfLargest = 0.25;
/// So many candidates on both sides of the best size are drawn from.
constexpr std::uint32_t kHalfWindow = 20;
/// The last factor is the nearest to the right size that makes a new `a`, or its neighbours so far.
constexpr std::int64_t kNeighbours = 10;
/// Draws in vain after which there is nothing left to be found.
constexpr int kDraws = 500;

} // namespace

PolynomialSource::PolynomialSource(const Plan &plan) : m_plan(plan)
{
    // The values are smallest over the whole interval where a = sqrt(kn / 2) / reach.
    m_target = (plan.valueBits() + 1) * std::log(2) - 2 * std::log(plan.reach());
    const double best = std::log(std::min(kBestFactor, kShareOfLargest * plan.largestPrime()));
    m_factors = static_cast<std::size_t>(std::max(2L, std::lround(m_target / best)));

    for (std::uint32_t i = kFirstOddPrime; i < plan.base.size(); ++i)
        if (plan.base.roots[i] != 0 && plan.base.primes[i] < kBlockSize)
            m_candidates.push_back(i);
    const double share = m_target / static_cast<double>(m_factors);
    const auto middle = static_cast<std::uint32_t>(
        std::partition_point(
            m_candidates.begin(), m_candidates.end(),
            [&](std::uint32_t i) { return std::log(m_plan.base.primes[i]) < share; }) -
        m_candidates.begin());
    m_first = middle - std::min(middle, kHalfWindow);
    m_last = std::min(middle + kHalfWindow, static_cast<std::uint32_t>(m_candidates.size()));
}

std::ptrdiff_t PolynomialSource::countBelow(double logarithm) const
{
    const auto isBelow = [&](std::uint32_t i) {
        return std::log(m_plan.base.primes[i]) < logarithm;
    };
    return std::partition_point(m_candidates.begin(), m_candidates.end(), isBelow) -
           m_candidates.begin();
}

double PolynomialSource::logOf(std::uint32_t candidate) const
{
    return std::log(m_plan.base.primes[m_candidates[candidate]]);
}

std::optional<PolynomialSource::Indices> PolynomialSource::next()
{
    const std::lock_guard lock(m_mutex);
    if (m_last - m_first < m_factors)
        return std::nullopt;
    for (int draw = 0; draw < kDraws; ++draw) {
        Indices chosen = drawAllButOne();
        const auto last = lastFor(chosen);
        if (!last)
            continue;
        chosen.push_back(*last);
        std::sort(chosen.begin(), chosen.end());
        m_given.insert(chosen);
        for (std::uint32_t &index : chosen)
            index = m_candidates[index];
        return chosen;
    }
    return std::nullopt;
}

PolynomialSource::Indices PolynomialSource::drawAllButOne()
{
    Indices drawn;
    while (drawn.size() + 1 < m_factors) {
        const auto one = m_first + static_cast<std::uint32_t>(m_random() % (m_last - m_first));
        if (std::find(drawn.begin(), drawn.end(), one) == drawn.end())
            drawn.push_back(one);
    }
    return drawn;
}

/// The candidate that brings the product of the others nearest to the target, so that it is new.
std::optional<std::uint32_t> PolynomialSource::lastFor(const Indices &others) const
{
    double missing = m_target;
    for (const std::uint32_t other : others)
        missing -= logOf(other);
    const auto size = static_cast<std::int64_t>(m_candidates.size());
    const std::int64_t at = countBelow(missing);
    for (std::int64_t i = 0; i <= 2 * kNeighbours; ++i) {
        const std::int64_t place = at + (i % 2 == 0 ? -i / 2 : (i + 1) / 2);
        if (place < 0 || place >= size)
            continue;
        const auto last = static_cast<std::uint32_t>(place);
        Indices all = others;
        all.push_back(last);
        std::sort(all.begin(), all.end());
        if (std::adjacent_find(all.begin(), all.end()) == all.end() && !m_given.contains(all))
            return last;
    }
    return std::nullopt;
}

} // namespace bignum::sieve
