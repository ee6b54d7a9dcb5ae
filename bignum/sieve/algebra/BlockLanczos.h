// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/StopSignal.h"
#include "bignum/sieve/algebra/SparseMatrix.h"

#include <cstdint>

namespace bignum::sieve {

/// Independent dependencies, mostly some 60 where there are that many, by the block Lanczos method
/// (P. L. Montgomery, "A block Lanczos algorithm for finding dependencies over GF(2)", 1995). It
/// starts from random bits drawn by the seed, fails for some of them, and for most where the matrix
/// has fewer than some hundred columns: none then. None when stopped.
std::vector<Dependency> lanczosDependencies(const SparseMatrix &matrix, std::uint64_t seed,
                                            const StopSignal &stop);

} // namespace bignum::sieve
