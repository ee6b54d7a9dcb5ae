// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

namespace bignum::sieve {

/// A matrix over the field of two elements: each column lists the rows of its ones, ascending.
struct SparseMatrix
{
    std::size_t rows = 0;
    std::vector<std::vector<std::uint32_t>> columns;
};

/// Columns whose sum is zero, ascending.
using Dependency = std::vector<std::uint32_t>;

/// The numbers that stand in an odd one of the two ascending lists.
std::vector<std::uint32_t> sumOf(const std::vector<std::uint32_t> &a,
                                 const std::vector<std::uint32_t> &b);

/// Sorts a list and takes out every pair of equal numbers.
void reduceToOddOnes(std::vector<std::uint32_t> &list);

/// Whether the columns add up to zero, by adding them up.
bool isDependency(const SparseMatrix &matrix, const Dependency &columns);

} // namespace bignum::sieve
