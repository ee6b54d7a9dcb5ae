// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/primes/PrimeList.h"

#include "bignum/primes/PrimeStream.h"

#include <algorithm>
#include <vector>

namespace bignum {

std::int64_t countPrimes(std::int64_t limit)
{
    if (limit < 2)
        return 0;
    return static_cast<std::int64_t>(countPrimesTo(static_cast<std::uint64_t>(limit)));
}

bool streamPrimes(std::int64_t first, std::int64_t last,
                  const std::function<bool(std::span<const std::uint64_t>)> &block)
{
    constexpr std::size_t blockSize = 8192;
    if (last < 2 || first > last)
        return true;

    const auto end = static_cast<std::uint64_t>(last);
    PrimeStream primes(static_cast<std::uint64_t>(std::max<std::int64_t>(first, 0)), end);
    std::vector<std::uint64_t> buffer;
    buffer.reserve(blockSize);
    for (std::uint64_t p = primes.next(); p <= end; p = primes.next()) {
        buffer.push_back(p);
        if (buffer.size() == blockSize) {
            if (!block(buffer))
                return false;
            buffer.clear();
        }
    }
    return buffer.empty() || block(buffer);
}

} // namespace bignum
