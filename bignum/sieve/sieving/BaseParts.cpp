// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/sieving/BaseParts.h"

#include <algorithm>

namespace bignum::sieve {

namespace {

constexpr std::size_t kIndicesOfSlice = 1U << 16; // what the tag of a bucket entry can tell apart

std::size_t roundUp(std::size_t size)
{
    return (size + kLanes - 1) / kLanes * kLanes;
}

} // namespace

BaseParts::BaseParts(const Plan &plan) : scale(plan)
{
    const auto &primes = plan.base.primes;
    const auto from = [&](std::uint32_t bound) {
        const auto odd = primes.begin() + kFirstOddPrime;
        return static_cast<std::size_t>(std::lower_bound(odd, primes.end(), bound) -
                                        primes.begin());
    };
    sieved = from(plan.parameters.firstSieved);
    bucketed = std::min(roundUp(std::max(sieved, from(kBlockSize))), primes.size());

    for (std::size_t i = sieved; i < bucketed; ++i) {
        const std::uint8_t log = scale.of(primes[i]);
        if (blockwise.empty() || blockwise.back().log != log)
            blockwise.push_back({i, i, log});
        blockwise.back().end = i + 1;
    }
    for (std::size_t i = bucketed; i < primes.size(); i += kLanes) {
        const std::uint8_t log = scale.of(primes[i]);
        if (slices.empty() || slices.back().log != log ||
            i - slices.back().begin >= kIndicesOfSlice)
            slices.push_back({i, i, log});
        slices.back().end = i + kLanes;
    }
}

} // namespace bignum::sieve
