// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/factoring/FactorSearch.h"

#include <optional>
#include <vector>

namespace bignum {

struct Factorization
{
    std::vector<FoundFactor> powers; ///< primes in ascending order, then what was left composite
    SearchEnd end;
};

/// The factors of |n|; none for 0 and 1.
Factorization factorize(const mpz_class &n, Effort effort);

/// Euler's function; nothing for n < 1 and where n could not be factored.
std::optional<mpz_class> eulerPhi(const mpz_class &n, Effort effort);

} // namespace bignum
