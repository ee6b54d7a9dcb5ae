// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/StopSignal.h"

#include <chrono>
#include <cstdint>
#include <gmpxx.h>
#include <vector>

namespace bignum::sieve {

enum class SieveOutcome {
    Split,   ///< into two factors at least
    Stopped, ///< the signal asked for it
    Failed,  ///< no polynomials are left, or no dependency splits the number
    OutOfMemory,
};

/// What a run of the sieve was made of.
struct SieveCounts
{
    std::uint32_t multiplier = 1;
    std::size_t base = 0;      ///< elements of the factor base
    std::size_t relations = 0; ///< that were found
    std::size_t partials = 0;  ///< those among them with large primes
    std::size_t columns = 0;   ///< of the matrix that was solved
    std::uint64_t polynomials = 0;
};

struct SieveTimes
{
    using Duration = std::chrono::steady_clock::duration;
    Duration plan{}; ///< multiplier and factor base
    Duration sieving{};
    Duration filter{}; ///< relation sets and the making of the matrix
    Duration matrix{}; ///< its dependencies
    Duration root{};
};

struct SieveResult
{
    SieveOutcome outcome = SieveOutcome::Failed;
    std::vector<mpz_class> factors; ///< above 1, their product is n; composite ones may be left
    SieveCounts counts;
    SieveTimes times;
};

/// Splits n, which is odd, composite, above 2^50 and no power, by the self-initialising quadratic
/// sieve (S. P. Contini, "Factoring integers with the self-initializing quadratic sieve", 1997) on
/// so many threads. The factors do not depend on their number. Nothing is thrown but by what the
/// caller hands in; a stop is answered within some 50 ms.
SieveResult sieveFactors(const mpz_class &n, const StopSignal &stop, unsigned threads);

} // namespace bignum::sieve
