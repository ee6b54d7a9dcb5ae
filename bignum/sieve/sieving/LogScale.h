// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/plan/Plan.h"

namespace bignum::sieve {

/// How sizes are written in the bytes of the sieve. A byte starts at `start`, the logarithm of each
/// prime found there is subtracted, and what falls below 0, and so has its top bit set, is a
/// candidate.
class LogScale
{
public:
    explicit LogScale(const Plan &plan);

    /// The rounded logarithm of a prime.
    std::uint8_t of(std::uint32_t prime) const;
    std::uint8_t start() const { return m_start; }

    /// The bits that were subtracted from the byte of a candidate.
    double bitsSieved(std::uint8_t candidate) const
    {
        return (m_start + 256 - candidate) / m_unitsPerBit;
    }

private:
    double m_unitsPerBit;
    std::uint8_t m_start;
};

} // namespace bignum::sieve
