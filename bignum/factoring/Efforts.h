// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/factoring/EllipticCurves.h"

#include <cstdint>
#include <vector>

namespace bignum {

/// The most digits that the sieve is given: two primes of 40 digits within the full effort on two
/// cores, or what is split within a second.
constexpr std::size_t kSieveDigits = 80;
constexpr std::size_t kBriefSieveDigits = 56;

/// The steps of the rho method that are worth trying before the sieve, by the same measure as the
/// curves below: a tenth of the sieve's time.
std::uint64_t rhoStepsFor(std::size_t digits);

/// The curves that are worth trying on a composite of so many digits. Up to kSieveDigits they take
/// about a tenth of the sieve's time, which is what factors too small for the sieve to pay off save
/// (measured); beyond, they go on until the deadline.
std::vector<CurveLevel> curvesFor(std::size_t digits);

/// The threads that are worth starting for the sieve.
unsigned sieveThreadsFor(std::size_t digits);

} // namespace bignum
