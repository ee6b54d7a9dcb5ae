// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/RelationStore.h"
#include "bignum/sieve/StopSignal.h"
#include "bignum/sieve/algebra/SparseMatrix.h"

namespace bignum::sieve {

/// Relations, by their numbers in the store, in whose product every large prime occurs an even
/// number of times.
using RelationSet = std::vector<std::uint32_t>;

/// As many independent sets as RelationStore::independent() counted: the cycles that the edges
/// outside a spanning forest close. The forest is grown breadth-first from 1, so that the cycles
/// are short. Some sets only, when stopped.
std::vector<RelationSet> relationSets(const RelationStore &store, const StopSignal &stop);

/// A column for each set: the factors that divide its product to an odd power, of so many in the
/// base. Fewer columns when stopped.
SparseMatrix parityMatrix(const RelationStore &store, const std::vector<RelationSet> &sets,
                          std::size_t baseSize, const StopSignal &stop);

} // namespace bignum::sieve
