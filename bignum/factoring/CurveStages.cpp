// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/factoring/CurveStages.h"

#include "bignum/primes/PrimeStream.h"

namespace bignum {

namespace {

constexpr std::uint64_t kSecondBound = 200; ///< times the first
constexpr std::uint64_t kShortStride = 210;
constexpr std::uint64_t kLongStride = 2310;
constexpr std::uint64_t kLongBound = 2000; ///< from here on the longer stride pays
constexpr std::size_t kGiantSteps = 256;   ///< that are normalized by one inversion
constexpr unsigned kPrimesUnwatched = 64;  ///< between two looks at the clock

} // namespace

CurveStages::CurveStages(const mpz_class &n, std::uint64_t bound,
                         const std::function<bool()> &ended)
    : m_n(n),
      m_bound(bound),
      m_stride(bound < kLongBound ? kShortStride : kLongStride),
      m_ended(ended),
      m_modulus(n)
{
}

std::optional<mpz_class> CurveStages::properFactor(const mpz_class &value) const
{
    const mpz_class common = gcd(value, m_n);
    if (common == 1 || common == m_n)
        return std::nullopt;
    return common;
}

std::optional<mpz_class> CurveStages::run(const mpz_class &sigma)
{
    const mpz_class u = sigma * sigma - 5;
    const mpz_class v = 4 * sigma;
    const mpz_class u3 = u * u * u;
    const mpz_class divisor = 16 * u3 * v;
    mpz_class inverse;
    if (mpz_invert(inverse.get_mpz_t(), divisor.get_mpz_t(), m_n.get_mpz_t()) == 0)
        return properFactor(divisor);
    const mpz_class w = v - u;
    mpz_class quarter = w * w * w * (3 * u + v) * inverse;
    mpz_fdiv_r(quarter.get_mpz_t(), quarter.get_mpz_t(), m_n.get_mpz_t());

    MontgomeryCurve curve(m_modulus, quarter);
    Point point{m_modulus.fromInteger(u3), m_modulus.fromInteger(v * v * v)};
    if (!multiplyByPowers(curve, point))
        return std::nullopt;
    const mpz_class z = m_modulus.toInteger(point.z);
    if (gcd(z, m_n) != 1)
        return properFactor(z);
    return second(curve, point);
}

/// By the greatest power of each prime within the first bound. False if it was ended.
bool CurveStages::multiplyByPowers(MontgomeryCurve &curve, Point &point) const
{
    PrimeStream primes(2, m_bound);
    unsigned unwatched = 0;
    for (std::uint64_t p = primes.next(); p <= m_bound; p = primes.next()) {
        for (std::uint64_t power = p; power <= m_bound; power *= p)
            point = curve.multiply(point, p).low;
        if (++unwatched % kPrimesUnwatched == 0 && m_ended())
            return false;
    }
    return true;
}

/// The multiples of the point by the odd numbers below half a stride.
std::vector<CurveStages::Point> CurveStages::babySteps(MontgomeryCurve &curve,
                                                       const Point &point) const
{
    const auto [two, three] = curve.multiply(point, 2);
    std::vector<Point> steps{point, three};
    while (2 * steps.size() + 1 <= m_stride / 2) {
        Point next = point;
        curve.add(next, steps.back(), two, steps[steps.size() - 2]);
        steps.push_back(std::move(next));
    }
    return steps;
}

/// Divides all X by their Z with one inversion (Montgomery, 1987). A factor, or n itself, where
/// some Z has none.
std::optional<mpz_class> CurveStages::normalize(std::vector<Point> &points)
{
    std::vector<Residue> products; // of all Z before
    Residue product = m_modulus.fromInteger(1);
    for (const Point &point : points) {
        products.push_back(product);
        m_modulus.multiply(product, product, point.z);
    }
    mpz_class inverse = m_modulus.toInteger(product);
    const mpz_class common = gcd(inverse, m_n);
    if (common != 1)
        return common;
    mpz_invert(inverse.get_mpz_t(), inverse.get_mpz_t(), m_n.get_mpz_t());
    Residue rest = m_modulus.fromInteger(inverse);
    for (std::size_t i = points.size(); i-- > 0;) {
        m_modulus.multiply(products[i], products[i], rest);
        m_modulus.multiply(points[i].x, points[i].x, products[i]);
        m_modulus.multiply(rest, rest, points[i].z);
    }
    return std::nullopt;
}

/// The primes q = k·stride ± j between the bounds: q times the point is the neutral element where
/// k·stride times it and j times it have one x. Their differences are multiplied together.
std::optional<mpz_class> CurveStages::second(MontgomeryCurve &curve, const Point &point)
{
    std::vector<Point> babies = babySteps(curve, point);
    if (const auto common = normalize(babies))
        return properFactor(*common);
    const Point stride = curve.multiply(point, m_stride).low;
    std::uint64_t k = (m_bound + m_stride / 2) / m_stride;
    auto [giant, following] = curve.multiply(stride, k);

    PrimeStream primes(m_bound + 1, kSecondBound * m_bound);
    std::uint64_t q = primes.next();
    Residue product = m_modulus.fromInteger(1);
    Residue difference = product;
    std::vector<std::uint64_t> servedAt(
        babies.size()); // the last middle with a prime at j below it
    while (k * m_stride <= kSecondBound * m_bound) {
        if (m_ended())
            return std::nullopt;
        std::vector<Point> giants;
        while (giants.size() < kGiantSteps) {
            giants.push_back(giant);
            curve.add(giant, following, stride, giant);
            std::swap(giant, following);
        }
        if (const auto common = normalize(giants))
            return properFactor(*common);
        for (const Point &centre : giants) {
            const std::uint64_t middle = k++ * m_stride;
            for (; q < middle + m_stride / 2; q = primes.next()) {
                const std::uint64_t j = q < middle ? middle - q : q - middle;
                if (servedAt[j / 2] == middle)
                    continue;
                servedAt[j / 2] = middle;
                m_modulus.subtract(difference, centre.x, babies[j / 2].x);
                m_modulus.multiply(product, product, difference);
            }
        }
    }
    return properFactor(m_modulus.toInteger(product));
}

} // namespace bignum
