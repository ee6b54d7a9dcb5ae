// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/factoring/PollardRho.h"

#include "bignum/arithmetic/Montgomery128.h"
#include "bignum/arithmetic/Montgomery64.h"
#include "bignum/arithmetic/Word.h"

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
    return Uint128{wordAt(value, 1)} << 64 | wordAt(value, 0);
}

Uint128 gcdOf(Uint128 a, Uint128 b)
{
    return toWord(gcd(toInteger(a), toInteger(b)));
}

/// The walk x -> x^2 + c modulo n, and where it is.
template <typename Modulus>
class Walk
{
public:
    using Residue = typename Modulus::Residue;

    Walk(Residue n, unsigned c) : m_n(n), m_modulus(n), m_c(c), m_at(m_modulus.one()) {}

    Residue at() const { return m_at; }

    void advance(std::uint64_t steps)
    {
        for (; steps > 0; --steps)
            m_at = m_modulus.add(m_modulus.multiply(m_at, m_at), m_c);
    }

    /// Goes so many steps on and gives what n has in common with the difference of one of them
    /// from `place`: for the first such step, after which it stops, or 1. The differences are
    /// multiplied together in batches, and a batch that hides a meeting is gone through again in
    /// smaller ones.
    Residue meet(Residue place, std::uint64_t steps, std::uint64_t batch)
    {
        for (; steps > 0; steps -= std::min(batch, steps)) {
            const Residue start = m_at;
            Residue product = m_modulus.one();
            for (std::uint64_t i = std::min(batch, steps); i > 0; --i) {
                advance(1);
                product = m_modulus.multiply(product, m_modulus.subtract(m_at, place));
            }
            const Residue common = gcdOf(product, m_n);
            if (common == 1)
                continue;
            // The product is in Montgomery's form, but the common divisor is the same.
            if (batch == 1)
                return common;
            m_at = start;
            return meet(place, std::min(batch, steps), batch / 16 + (batch < 16 ? 1 : 0));
        }
        return 1;
    }

private:
    Residue m_n;
    Modulus m_modulus;
    unsigned m_c;
    Residue m_at;
};

/// One walk of about so many steps. Returns a divisor of n: n itself when the walk ran into all
/// factors at once, 1 when it was too short.
template <typename Modulus>
typename Modulus::Residue walk(typename Modulus::Residue n, unsigned c, std::uint64_t steps)
{
    constexpr std::uint64_t batch = 128;
    Walk<Modulus> fast(n, c);
    // Up to the end of a round its length has been gone four times.
    for (std::uint64_t length = 1; length <= steps / 4; length *= 2) {
        const typename Modulus::Residue slow = fast.at();
        fast.advance(length);
        const typename Modulus::Residue divisor = fast.meet(slow, length, batch);
        if (divisor != 1)
            return divisor;
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
