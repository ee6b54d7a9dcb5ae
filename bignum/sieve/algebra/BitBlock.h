// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace bignum::sieve {

/// 64 x 64 bits: row i is word i, column j bit j.
using Block = std::array<std::uint64_t, 64>;

/// n x 64 bits, a word a row.
using BlockVector = std::vector<std::uint64_t>;

Block identityBlock();
Block operator*(const Block &a, const Block &b);
Block operator+(const Block &a, const Block &b);
/// The columns of the block that are ones in the mask, zeros in the place of the others.
Block operator&(const Block &a, std::uint64_t columns);

/// The block v^T w. Each byte of a row of v picks the sum in a table to which the row of w is
/// added: eight additions a row in the place of 32 on average.
Block transposedProduct(const BlockVector &v, const BlockVector &w);

/// A block made ready to be multiplied from the left: the sums of its rows by bytes.
class BlockMultiplier
{
public:
    explicit BlockMultiplier(const Block &block);

    /// (row of a vector) * block.
    std::uint64_t operator()(std::uint64_t row) const
    {
        std::uint64_t sum = 0;
        for (std::size_t i = 0; i < m_sums.size(); ++i)
            sum ^= m_sums[i][row >> 8 * i & 0xFF];
        return sum;
    }

private:
    std::array<std::array<std::uint64_t, 256>, 8> m_sums;
};

} // namespace bignum::sieve
