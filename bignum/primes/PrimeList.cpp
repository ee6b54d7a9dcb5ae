#include "bignum/primes/PrimeList.h"

#include <primesieve.hpp>
#include <vector>

namespace bignum {

std::int64_t countPrimes(std::int64_t limit)
{
    if (limit < 2)
        return 0;
    return static_cast<std::int64_t>(
        primesieve::count_primes(0, static_cast<std::uint64_t>(limit)));
}

bool streamPrimes(std::int64_t limit,
                  const std::function<bool(std::span<const std::uint64_t>)> &block)
{
    constexpr std::size_t blockSize = 8192;
    if (limit < 2)
        return true;

    const auto last = static_cast<std::uint64_t>(limit);
    primesieve::iterator primes(0, last);
    std::vector<std::uint64_t> buffer;
    buffer.reserve(blockSize);
    for (std::uint64_t p = primes.next_prime(); p <= last; p = primes.next_prime()) {
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
