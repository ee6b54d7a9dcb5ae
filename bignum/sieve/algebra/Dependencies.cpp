// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/algebra/Dependencies.h"

#include "bignum/sieve/algebra/BitLines.h"
#include "bignum/sieve/algebra/BlockLanczos.h"

#include <algorithm>

namespace bignum::sieve {

namespace {

/// Where both take the same time (measured); block Lanczos also needs some columns to spare.
constexpr std::size_t kGaussColumns = 700;

/// A try fails about once in twenty: five in a row have another cause.
constexpr std::uint64_t kLanczosTries = 5;

/// What Gauss may take where Lanczos failed: 20 000 columns.
constexpr std::size_t kGaussBytes = std::size_t{100} << 20;

void keepTrueOnes(const SparseMatrix &matrix, std::vector<Dependency> &found)
{
    std::erase_if(found, [&](const Dependency &columns) { return !isDependency(matrix, columns); });
}

} // namespace

std::vector<Dependency> gaussianDependencies(const SparseMatrix &matrix, const StopSignal &stop)
{
    constexpr std::size_t linesAtOnce = 16; // some milliseconds at ten thousand columns
    BitLines lines(matrix.columns.size(), matrix.rows, matrix.columns.size());
    std::vector<Dependency> found;
    for (std::size_t line = 0; line < matrix.columns.size(); ++line) {
        if (line % linesAtOnce == 0 && stop.stopped())
            break;
        for (const std::uint32_t row : matrix.columns[line])
            lines.setHead(line, row);
        lines.setTail(line, line);
        if (auto dependency = lines.reduce(line))
            found.push_back(std::move(*dependency));
    }
    return found;
}

std::vector<Dependency> dependenciesOf(const SparseMatrix &matrix, const StopSignal &stop)
{
    const std::size_t columns = matrix.columns.size();
    std::vector<Dependency> found;
    if (columns > kGaussColumns) {
        for (std::uint64_t seed = 1; seed <= kLanczosTries && found.empty(); ++seed) {
            found = lanczosDependencies(matrix, seed, stop);
            keepTrueOnes(matrix, found);
        }
    }
    if (found.empty() && BitLines::bytesFor(columns, matrix.rows, columns) <= kGaussBytes) {
        found = gaussianDependencies(matrix, stop);
        keepTrueOnes(matrix, found);
    }
    return found;
}

} // namespace bignum::sieve
