// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/StopSignal.h"
#include "bignum/sieve/algebra/SparseMatrix.h"

namespace bignum::sieve {

/// Independent dependencies of a matrix with more columns than rows, each of them checked: by Gauss
/// where the matrix is small, by block Lanczos else; should that fail several times, by Gauss
/// again where the memory allows. None when stopped or where all that failed.
std::vector<Dependency> dependenciesOf(const SparseMatrix &matrix, const StopSignal &stop);

/// At least columns - rows of them by elimination on packed bits, in about columns^3 / 64 steps.
/// Those found so far when stopped.
std::vector<Dependency> gaussianDependencies(const SparseMatrix &matrix, const StopSignal &stop);

} // namespace bignum::sieve
