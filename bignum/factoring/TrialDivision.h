#pragma once

#include "bignum/factoring/Factorization.h"

namespace bignum {

/// Divides the prime factors below 2^16 out of n > 0 and gives them in ascending order; it ends
/// sooner when what is left fits 64 bits.
std::vector<PrimePower> removeSmallFactors(mpz_class &n);

} // namespace bignum
