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
    /// For an odd composite n. `ended` is asked now and then whether to give up; it and n outlive
    /// this object, of which a thread has one at a time.
    CurveTrier(const mpz_class &n, double bound, const std::function<bool()> &ended);
    ~CurveTrier();
    CurveTrier(const CurveTrier &) = delete;
    CurveTrier &operator=(const CurveTrier &) = delete;

    /// A proper factor, if the next curve yields one.
    std::optional<mpz_class> tryCurve();

private:
    class Work;

    std::unique_ptr<Work> m_work;
};

} // namespace bignum
