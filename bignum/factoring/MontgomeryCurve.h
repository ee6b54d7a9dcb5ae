// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/arithmetic/MontgomeryModulus.h"

#include <cstdint>

namespace bignum {

/// Multiples of a point of b y^2 = x^3 + a x^2 + x modulo an odd n by their x = X/Z alone (P. L.
/// Montgomery, "Speeding the Pollard and elliptic curve methods of factorization", 1987). The
/// modulus is shared with whoever computes with coordinates.
class MontgomeryCurve
{
public:
    using Residue = MontgomeryModulus::Residue;

    struct Point
    {
        Residue x;
        Residue z;
    };

    /// `quarter` is (a + 2) / 4.
    MontgomeryCurve(MontgomeryModulus &modulus, const mpz_class &quarter);

    /// p + q, where `difference` is p - q; the result may be one of them.
    void add(Point &result, const Point &p, const Point &q, const Point &difference);
    /// 2 p; the result may be p.
    void twice(Point &result, const Point &p);

    /// k p and (k + 1) p.
    struct Pair
    {
        Point low;
        Point high;
    };
    /// For k >= 1.
    Pair multiply(const Point &p, std::uint64_t k);

private:
    MontgomeryModulus &m_modulus;
    Residue m_quarter;
    Residue m_sum, m_difference, m_first, m_second; ///< work space
};

} // namespace bignum
