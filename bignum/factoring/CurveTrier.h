// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <gmpxx.h>
#include <memory>
#include <optional>

namespace bignum {

/// Tries random curves on one number to one first bound, for one thread: by GMP-ECM, or by curves
/// of our own where that is missing.
class CurveTrier
{
public:
    CurveTrier() = default;
    virtual ~CurveTrier() = default;
    CurveTrier(const CurveTrier &) = delete;
    CurveTrier &operator=(const CurveTrier &) = delete;

    /// A proper factor, if the next curve yields one.
    virtual std::optional<mpz_class> tryCurve() = 0;
};

/// For an odd composite n. `ended` is asked now and then whether to give up; it and n outlive what
/// is given.
std::unique_ptr<CurveTrier> curveTrier(const mpz_class &n, double bound,
                                       const std::function<bool()> &ended);

} // namespace bignum
