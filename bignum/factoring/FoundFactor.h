// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/QuadraticSieve.h"

#include <chrono>
#include <gmpxx.h>

namespace bignum {

/// What a factor comes from; numbered as BignumMethod of bignum.h is.
enum class Method {
    None,          ///< the number itself: there was nothing to find
    TrialDivision, ///< divided out, or left when that was done
    Rho,
    Curve,
    Sieve,
    Root, ///< the number was a power of it
};

/// How the number was split of which a factor is a part.
struct Discovery
{
    Method method = Method::None;
    double curveBound = 0; ///< first bound of the curve that did it
    int curves = 0;        ///< tried up to and with it
    sieve::SieveCounts sieve{};
    std::chrono::steady_clock::duration took{}; ///< what the method spent
};

/// base^exponent divides the number, base^(exponent + 1) does not.
struct FoundFactor
{
    mpz_class base;
    unsigned long exponent;
    bool prime; ///< false for a composite that could not be split
    Discovery how;
    std::chrono::steady_clock::duration after; ///< since the search began
};

} // namespace bignum
