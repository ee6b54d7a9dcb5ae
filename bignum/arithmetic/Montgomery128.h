// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace bignum {

__extension__ using Uint128 = unsigned __int128;

/// As Montgomery64, for an odd n < 2^126: so much smaller than two words that no sum overflows.
class Montgomery128
{
public:
    using Residue = Uint128;

    explicit Montgomery128(Uint128 n)
        : m_n(n), m_low(low(n)), m_high(high(n)), m_negativeInverse(low(n)), m_one((0 - n) % n)
    {
        for (int bits = 3; bits < 64; bits *= 2)
            m_negativeInverse *= 2 - m_low * m_negativeInverse;
        m_negativeInverse = 0 - m_negativeInverse;
    }

    Residue one() const { return m_one; }
    Residue add(Residue a, Residue b) const { return reduceOnce(a + b); }
    Residue subtract(Residue a, Residue b) const { return a >= b ? a - b : a + (m_n - b); }

    Residue multiply(Residue a, Residue b) const
    {
        const Residue half = addProduct(0, low(a), b);
        return reduceOnce(addProduct(half, high(a), b));
    }

private:
    static std::uint64_t low(Uint128 value) { return static_cast<std::uint64_t>(value); }
    static std::uint64_t high(Uint128 value) { return static_cast<std::uint64_t>(value >> 64); }

    Residue reduceOnce(Residue a) const { return a >= m_n ? a - m_n : a; }

    /// (sum + word·b) / 2^64 modulo n, below 2n for sum < 2n and b < n.
    Residue addProduct(Residue sum, std::uint64_t word, Residue b) const
    {
        const Uint128 bottom = Uint128{word} * low(b) + low(sum);
        const Uint128 top = Uint128{word} * high(b) + high(sum) + high(bottom);
        const std::uint64_t q = low(bottom) * m_negativeInverse;
        const Uint128 carry = Uint128{q} * m_low + low(bottom);
        const Uint128 middle = Uint128{q} * m_high + low(top) + high(carry);
        return middle + (Uint128{high(top)} << 64);
    }

    Uint128 m_n;
    std::uint64_t m_low;
    std::uint64_t m_high;
    std::uint64_t m_negativeInverse; ///< -1/n modulo 2^64
    Residue m_one;
};

} // namespace bignum
