// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <gmpxx.h>
#include <optional>

namespace bignum {

/// A proper factor of the odd composite n, found by Pollard's rho method in Brent's form (J. M.
/// Pollard, "A Monte Carlo method for factorization", 1975; R. P. Brent, "An improved Monte Carlo
/// factorization algorithm", 1980), in about p^(1/2) steps for the least prime factor p.
std::uint64_t rhoFactor(std::uint64_t n);

/// The most bits of n for shortRhoFactor.
constexpr std::size_t kShortRhoBits = 126;

/// The same for an n of two words, but at most so many steps.
std::optional<mpz_class> shortRhoFactor(const mpz_class &n, std::uint64_t steps);

} // namespace bignum
