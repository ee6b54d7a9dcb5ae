// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/factoring/FoundFactor.h"

#include <functional>

namespace bignum {

/// How long to try: Full takes up to about two minutes, Brief about a second.
enum class Effort { Full, Brief };

/// How a search ended.
enum class SearchEnd {
    Complete,      ///< all factors handed over are prime
    CompositeLeft, ///< one at least could not be split within the effort
    Stopped,       ///< by the one who takes the factors, or by StopSignal::requestAll()
};

/// Takes a factor; false ends the search, and nothing more is handed over.
using FactorTaker = std::function<bool(const FoundFactor &)>;

/// Hands over the factors of |n|, each once with its whole exponent: primes as they are found, then
/// what was left composite. None for 0 and 1. A search that was stopped by StopSignal::requestAll()
/// hands over what was not split by then as composite.
SearchEnd findFactors(const mpz_class &n, Effort effort, const FactorTaker &take);

} // namespace bignum
