// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/algebra/SparseMatrix.h"

#include <algorithm>
#include <iterator>

namespace bignum::sieve {

std::vector<std::uint32_t> sumOf(const std::vector<std::uint32_t> &a,
                                 const std::vector<std::uint32_t> &b)
{
    std::vector<std::uint32_t> sum;
    sum.reserve(a.size() + b.size());
    std::set_symmetric_difference(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(sum));
    return sum;
}

void reduceToOddOnes(std::vector<std::uint32_t> &list)
{
    std::sort(list.begin(), list.end());
    std::size_t kept = 0;
    for (const std::uint32_t value : list) {
        if (kept > 0 && list[kept - 1] == value)
            --kept;
        else
            list[kept++] = value;
    }
    list.resize(kept);
}

bool isDependency(const SparseMatrix &matrix, const Dependency &columns)
{
    std::vector<unsigned char> odd(matrix.rows); // bytes are quicker than bits
    for (const std::uint32_t column : columns)
        for (const std::uint32_t row : matrix.columns[column])
            odd[row] ^= 1;
    return !columns.empty() && std::find(odd.begin(), odd.end(), 1) == odd.end();
}

} // namespace bignum::sieve
