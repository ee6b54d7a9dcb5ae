#include "bignum/factoring/PollardRho.h"

#include "bignum/arithmetic/Montgomery128.h"
#include "bignum/arithmetic/Montgomery64.h"

#include <algorithm>
#include <numeric>

namespace bignum {

namespace {

std::uint64_t gcdOf(std::uint64_t a, std::uint64_t b)
{
    return std::gcd(a, b);
}

mpz_class toInteger(Uint128 value)
{
    mpz_class result;
    mpz_import(result.get_mpz_t(), 1, -1, sizeof value, 0, 0, &value);
    return result;
}

Uint128 toWord(const mpz_class &value)
{
    return Uint128{mpz_getlimbn(value.get_mpz_t(), 1)} << 64 | mpz_getlimbn(value.get_mpz_t(), 0);
}

Uint128 gcdOf(Uint128 a, Uint128 b)
{
    return toWord(gcd(toInteger(a), toInteger(b)));
}

/// One walk x -> x² + c, of about so many steps. Returns a divisor of n: n itself when the walk ran
/// into all factors at once, 1 when it was too short.
template <typename Modulus>
typename Modulus::Residue walk(typename Modulus::Residue n, unsigned c, std::uint64_t steps)
{
    using Residue = typename Modulus::Residue;
    constexpr std::uint64_t batch = 128; // differences multiplied together between two gcds
    const Modulus modulus(n);
    const auto step = [&](Residue x) { return modulus.add(modulus.multiply(x, x), c); };

    Residue fast = modulus.one();
    // Up to the end of a round its length has been gone four times.
    for (std::uint64_t length = 1; length <= steps / 4; length *= 2) {
        const Residue slow = fast;
        for (std::uint64_t i = 0; i < length; ++i)
            fast = step(fast);
        for (std::uint64_t done = 0; done < length; done += batch) {
            const Residue start = fast;
            Residue product = modulus.one();
            for (std::uint64_t i = std::min(batch, length - done); i > 0; --i) {
                fast = step(fast);
                product = modulus.multiply(product, modulus.subtract(fast, slow));
            }
            if (gcdOf(product, n) == 1)
                continue;
            // The batch hides the first meeting: go through it again one by one.
            for (Residue x = start;;) {
                x = step(x);
                const Residue divisor = gcdOf(modulus.subtract(x, slow), n);
                if (divisor != 1)
                    return divisor;
            }
        }
    }
    return 1;
}

} // namespace

std::uint64_t rhoFactor(std::uint64_t n)
{
    constexpr auto noLimit = std::uint64_t{1} << 63;
    for (unsigned c = 1;; ++c) {
        const std::uint64_t divisor = walk<Montgomery64>(n, c, noLimit);
        if (divisor != n)
            return divisor;
    }
}

std::optional<mpz_class> shortRhoFactor(const mpz_class &n, std::uint64_t steps)
{
    const mpz_class divisor = toInteger(walk<Montgomery128>(toWord(n), 1, steps));
    if (divisor == 1 || divisor == n)
        return std::nullopt;
    return divisor;
}

} // namespace bignum
