// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/algebra/BitBlock.h"

#include <bit>

namespace bignum::sieve {

Block identityBlock()
{
    Block block{};
    for (std::size_t i = 0; i < block.size(); ++i)
        block[i] = std::uint64_t{1} << i;
    return block;
}

Block operator*(const Block &a, const Block &b)
{
    Block product{};
    for (std::size_t i = 0; i < a.size(); ++i)
        for (std::uint64_t row = a[i]; row != 0; row &= row - 1)
            product[i] ^= b[static_cast<std::size_t>(std::countr_zero(row))];
    return product;
}

Block operator+(const Block &a, const Block &b)
{
    Block sum{};
    for (std::size_t i = 0; i < a.size(); ++i)
        sum[i] = a[i] ^ b[i];
    return sum;
}

Block operator&(const Block &a, std::uint64_t columns)
{
    Block chosen{};
    for (std::size_t i = 0; i < a.size(); ++i)
        chosen[i] = a[i] & columns;
    return chosen;
}

Block transposedProduct(const BlockVector &v, const BlockVector &w)
{
    std::array<std::array<std::uint64_t, 256>, 8> sums{};
    for (std::size_t i = 0; i < v.size(); ++i)
        for (std::size_t k = 0; k < sums.size(); ++k)
            sums[k][v[i] >> 8 * k & 0xFF] ^= w[i];
    Block product{};
    for (std::size_t bit = 0; bit < product.size(); ++bit)
        for (std::size_t byte = 0; byte < 256; ++byte)
            if ((byte >> bit % 8 & 1) != 0)
                product[bit] ^= sums[bit / 8][byte];
    return product;
}

BlockMultiplier::BlockMultiplier(const Block &block) : m_sums{}
{
    for (std::size_t i = 0; i < m_sums.size(); ++i)
        for (std::size_t byte = 1; byte < 256; ++byte)
            m_sums[i][byte] = m_sums[i][byte & (byte - 1)] ^
                              block[8 * i + static_cast<std::size_t>(std::countr_zero(byte))];
}

} // namespace bignum::sieve
