#pragma once

#include "bignum/Deadline.h"

#include <gmpxx.h>
#include <optional>
#include <span>

namespace bignum {

/// So many curves to one first bound.
struct CurveLevel
{
    double bound; ///< at most 10^6: beyond, a curve may outlast its deadline by far
    int curves;
};

/// A proper factor of the odd composite n, looked for with elliptic curves (H. W. Lenstra,
/// "Factoring integers with elliptic curves", 1987) level by level; nothing when the levels are
/// through or the deadline has passed.
std::optional<mpz_class> curveFactor(const mpz_class &n, std::span<const CurveLevel> levels,
                                     const Deadline &deadline);

} // namespace bignum
