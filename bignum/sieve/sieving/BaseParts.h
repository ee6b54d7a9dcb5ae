// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/sieving/LogScale.h"

namespace bignum::sieve {

/// Base indices whose primes have the same logarithm in the bytes of the sieve.
struct LogRange
{
    std::size_t begin;
    std::size_t end;
    std::uint8_t log;
};

/// How the base is parted by the size of the primes: up to `sieved` they are left out, from there
/// to `bucketed` sieved block by block, and beyond it, where many blocks have no position of
/// theirs, sorted into buckets.
struct BaseParts
{
    explicit BaseParts(const Plan &plan);

    LogScale scale;
    std::size_t sieved;
    std::size_t bucketed;            ///< a multiple of kLanes, or the size of the base
    std::vector<LogRange> blockwise; ///< from `sieved` to `bucketed`
    /// From `bucketed` on: begin at multiples of kLanes, span at most 2^16 indices, and the last
    /// ends at a multiple of kLanes at or after the end of the base.
    std::vector<LogRange> slices;
};

} // namespace bignum::sieve
