// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace bignum {

/// Arithmetic modulo an odd n < 2^64 on residues a·2^64 mod n, where a product costs three
/// multiplications and no division (P. L. Montgomery, "Modular multiplication without trial
/// division", 1985). All operands are below n.
class Montgomery64
{
public:
    using Residue = std::uint64_t;

    explicit Montgomery64(std::uint64_t n) : m_n(n), m_inverse(n), m_one((0 - n) % n)
    {
        // Newton's iteration: n is its own inverse modulo 8, and each step doubles the bits.
        for (int bits = 3; bits < 64; bits *= 2)
            m_inverse *= 2 - n * m_inverse;
    }

    std::uint64_t one() const { return m_one; }

    std::uint64_t add(std::uint64_t a, std::uint64_t b) const
    {
        return a >= m_n - b ? a - (m_n - b) : a + b;
    }

    std::uint64_t subtract(std::uint64_t a, std::uint64_t b) const
    {
        return a >= b ? a - b : a + (m_n - b);
    }

    std::uint64_t multiply(std::uint64_t a, std::uint64_t b) const
    {
        const Wide product = Wide{a} * b;
        const std::uint64_t q = static_cast<std::uint64_t>(product) * m_inverse;
        const auto high = static_cast<std::uint64_t>(product >> 64);
        const auto excess = static_cast<std::uint64_t>((Wide{q} * m_n) >> 64);
        return subtract(high, excess);
    }

private:
    __extension__ using Wide = unsigned __int128;

    std::uint64_t m_n;
    std::uint64_t m_inverse;
    std::uint64_t m_one;
};

} // namespace bignum
