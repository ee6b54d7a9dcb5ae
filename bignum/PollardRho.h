#pragma once

#include <cstdint>

namespace bignum {

/// A proper factor of the odd composite n, found by Pollard's rho method in Brent's form (J. M.
/// Pollard, "A Monte Carlo method for factorization", 1975; R. P. Brent, "An improved Monte Carlo
/// factorization algorithm", 1980), in about p^(1/2) steps for the least prime factor p.
std::uint64_t rhoFactor(std::uint64_t n);

} // namespace bignum
