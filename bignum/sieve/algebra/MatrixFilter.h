// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/StopSignal.h"
#include "bignum/sieve/algebra/SparseMatrix.h"

namespace bignum::sieve {

/// A smaller matrix and, for each of its columns, the columns of the larger one that were added up.
struct FilteredMatrix
{
    SparseMatrix matrix;
    std::vector<std::vector<std::uint32_t>> sources;
};

/// Makes a matrix small before it is solved; every dependency of the result is one of the matrix.
/// As is, or halfway, when stopped.
///
/// A row with a single one takes its column with it; of the columns beyond kExcess more than
/// rows the heaviest go. Then a row with few ones is got rid of by adding the lightest of its
/// columns to the others, for as long as a matrix of one row less makes up for the ones that it
/// adds (C. Pomerance and J. W. Smith, "Reduction of huge, sparse matrices over finite fields via
/// created catastrophes", 1992).
FilteredMatrix filtered(SparseMatrix matrix, const StopSignal &stop);

/// So many columns more than rows are kept: each is a dependency, and each dependency splits the
/// number with a chance of at least one half.
constexpr std::size_t kExcess = 20;

} // namespace bignum::sieve
