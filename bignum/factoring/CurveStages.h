// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/factoring/MontgomeryCurve.h"

#include <functional>
#include <optional>

namespace bignum {

/// One curve on one number: looks for a factor p modulo which the order of a point has no prime
/// beyond the first bound save one, which is below the second.
class CurveStages
{
public:
    /// For an odd composite n. The second bound is in proportion to the first: so that its stage,
    /// which has one product for two primes, takes somewhat less long from bounds of some ten
    /// thousand on (measured: 0.9 of the first). `ended` is asked now and then whether to give up.
    CurveStages(const mpz_class &n, std::uint64_t bound, const std::function<bool()> &ended);

    /// A proper factor by the curve and point that `sigma` > 5 stands for, whose order is a
    /// multiple of 12 (H. Suyama's choice, told in Montgomery's paper of 1987).
    std::optional<mpz_class> run(const mpz_class &sigma);

private:
    using Residue = MontgomeryCurve::Residue;
    using Point = MontgomeryCurve::Point;

    std::optional<mpz_class> properFactor(const mpz_class &value) const;
    bool multiplyByPowers(MontgomeryCurve &curve, Point &point) const;
    std::optional<mpz_class> second(MontgomeryCurve &curve, const Point &point);
    std::vector<Point> babySteps(MontgomeryCurve &curve, const Point &point) const;
    std::optional<mpz_class> normalize(std::vector<Point> &points);

    const mpz_class &m_n;
    std::uint64_t m_bound;
    std::uint64_t m_stride; ///< between giant steps
    const std::function<bool()> &m_ended;
    MontgomeryModulus m_modulus;
};

} // namespace bignum
