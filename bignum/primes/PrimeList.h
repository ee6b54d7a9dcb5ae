// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <span>

namespace bignum {

/// The number of primes not above `limit`.
std::int64_t countPrimes(std::int64_t limit);

/// Hands the primes from `first` to `last` to `block` in ascending order, some thousands at a time,
/// until it returns false. True if all were handed over.
bool streamPrimes(std::int64_t first, std::int64_t last,
                  const std::function<bool(std::span<const std::uint64_t>)> &block);

} // namespace bignum
