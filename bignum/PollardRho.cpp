#include "PollardRho.h"

#include "Montgomery64.h"

#include <algorithm>
#include <numeric>

namespace bignum {

namespace {

/// One walk x -> x² + c. Returns a divisor of n above 1, which is n itself when the walk failed.
std::uint64_t walk(std::uint64_t n, std::uint64_t c)
{
    constexpr std::uint64_t batch = 128; // differences multiplied together between two gcds
    const Montgomery64 modulus(n);
    const auto step = [&](std::uint64_t x) { return modulus.add(modulus.multiply(x, x), c); };

    std::uint64_t fast = modulus.one();
    for (std::uint64_t length = 1;; length *= 2) {
        const std::uint64_t slow = fast;
        for (std::uint64_t i = 0; i < length; ++i)
            fast = step(fast);
        for (std::uint64_t done = 0; done < length; done += batch) {
            const std::uint64_t start = fast;
            std::uint64_t product = modulus.one();
            for (std::uint64_t i = std::min(batch, length - done); i > 0; --i) {
                fast = step(fast);
                product = modulus.multiply(product, modulus.subtract(fast, slow));
            }
            if (std::gcd(product, n) == 1)
                continue;
            // The batch hides the first meeting: go through it again one by one.
            for (std::uint64_t x = start;;) {
                x = step(x);
                const std::uint64_t divisor = std::gcd(modulus.subtract(x, slow), n);
                if (divisor != 1)
                    return divisor;
            }
        }
    }
}

} // namespace

std::uint64_t rhoFactor(std::uint64_t n)
{
    for (std::uint64_t c = 1;; ++c) {
        const std::uint64_t divisor = walk(n, c);
        if (divisor != n)
            return divisor;
    }
}

} // namespace bignum
