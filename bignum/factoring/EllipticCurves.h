// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/StopSignal.h"

#include <gmpxx.h>
#include <optional>
#include <span>

namespace bignum {

/// So many curves to one first bound.
struct CurveLevel
{
    double bound; ///< at most 10^6: beyond, a curve may outlast a stop by far
    int curves;
};

struct CurveFactor
{
    mpz_class factor;
    double bound; ///< of the curve that found it
    int curves;   ///< begun by then
};

/// A proper factor of the odd composite n, looked for with elliptic curves (H. W. Lenstra,
/// "Factoring integers with elliptic curves", 1987) level by level, on so many threads; nothing
/// when the levels are through or the search is stopped.
std::optional<CurveFactor> curveFactor(const mpz_class &n, std::span<const CurveLevel> levels,
                                       const StopSignal &stop, unsigned threads);

} // namespace bignum
