// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/factoring/MontgomeryCurve.h"

#include <bit>

namespace bignum {

MontgomeryCurve::MontgomeryCurve(MontgomeryModulus &modulus, const mpz_class &quarter)
    : m_modulus(modulus),
      m_quarter(modulus.fromInteger(quarter)),
      m_sum(m_quarter),
      m_difference(m_quarter),
      m_first(m_quarter),
      m_second(m_quarter)
{
}

void MontgomeryCurve::add(Point &result, const Point &p, const Point &q, const Point &difference)
{
    m_modulus.subtract(m_difference, p.x, p.z);
    m_modulus.add(m_sum, q.x, q.z);
    m_modulus.multiply(m_first, m_difference, m_sum);
    m_modulus.add(m_sum, p.x, p.z);
    m_modulus.subtract(m_difference, q.x, q.z);
    m_modulus.multiply(m_second, m_sum, m_difference);
    m_modulus.add(m_sum, m_first, m_second);
    m_modulus.subtract(m_difference, m_first, m_second);
    m_modulus.square(m_sum, m_sum);
    m_modulus.square(m_difference, m_difference);
    m_modulus.multiply(m_first, m_sum, difference.z);
    m_modulus.multiply(m_second, m_difference, difference.x);
    result.x.swap(m_first);
    result.z.swap(m_second);
}

void MontgomeryCurve::twice(Point &result, const Point &p)
{
    m_modulus.add(m_sum, p.x, p.z);
    m_modulus.subtract(m_difference, p.x, p.z);
    m_modulus.square(m_sum, m_sum);
    m_modulus.square(m_difference, m_difference);
    m_modulus.subtract(m_first, m_sum, m_difference);
    m_modulus.multiply(m_second, m_first, m_quarter);
    m_modulus.add(m_second, m_second, m_difference);
    m_modulus.multiply(result.x, m_sum, m_difference);
    m_modulus.multiply(result.z, m_first, m_second);
}

MontgomeryCurve::Pair MontgomeryCurve::multiply(const Point &p, std::uint64_t k)
{
    Pair pair{p, p};
    twice(pair.high, p);
    for (int bit = static_cast<int>(std::bit_width(k)) - 1; bit-- > 0;) {
        const bool set = (k >> bit & 1) != 0;
        Point &between = set ? pair.low : pair.high;
        Point &doubled = set ? pair.high : pair.low;
        add(between, pair.low, pair.high, p);
        twice(doubled, doubled);
    }
    return pair;
}

} // namespace bignum
