// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/sieving/LogScale.h"

#include <algorithm>
#include <cmath>

namespace bignum::sieve {

namespace {

/// The bits that the primes below the first sieved one take from a value on average.
double unsievedBits(const Plan &plan)
{
    double bits = plan.base.size() > 1 ? 2 : 0;
    for (std::size_t i = kFirstOddPrime; i < plan.base.size(); ++i) {
        const double p = plan.base.primes[i];
        if (p >= plan.parameters.firstSieved)
            break;
        bits += (plan.base.roots[i] == 0 ? 1 : 2) * std::log2(p) / (p - 1);
    }
    return bits;
}

} // namespace

LogScale::LogScale(const Plan &plan)
{
    const double needed = std::max(1.0, plan.valueBits() - std::log2(plan.cofactorBound()) -
                                            plan.parameters.unsievedFactor * unsievedBits(plan));
    // A start above 127 would be a candidate itself, and what is sieved beyond the need must not
    // wrap around below -128; some units are left for the rounding of the logarithms.
    const double beyond = plan.valueBits() - needed;
    m_unitsPerBit = std::min({4.0, 120 / needed, 112 / (beyond + 4)});
    m_start = static_cast<std::uint8_t>(std::lround(needed * m_unitsPerBit));
}

std::uint8_t LogScale::of(std::uint32_t prime) const
{
    return static_cast<std::uint8_t>(std::lround(std::log2(prime) * m_unitsPerBit));
}

} // namespace bignum::sieve
