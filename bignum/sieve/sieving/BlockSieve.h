// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/AlignedVector.h"
#include "bignum/sieve/sieving/BaseParts.h"

namespace bignum::sieve {

/// Sieves with the primes that are not much longer than a block, block after block.
class BlockSieve
{
public:
    BlockSieve(const Plan &plan, const BaseParts &parts);

    /// Takes the roots of a polynomial up: the first block begins at position 0.
    void begin(const Roots &roots);

    /// Fills the bytes of the next block and sieves them.
    void sieveNext();

    std::uint8_t *bytes() { return m_bytes.data(); }

private:
    /// A prime that meets a block often, or several primes of about one size.
    struct Row
    {
        std::uint32_t leastHits; ///< of a root of any of them in a block
        std::uint32_t mostHits;
        std::uint8_t log;
    };

    Row rowOf(const BaseParts &parts, std::size_t begin, std::size_t end) const;
    void sievePrime(std::size_t index, std::uint8_t log);
    void sieveLanes(std::uint16_t *positions, const std::uint16_t *primes, const Row &row);

    std::uint8_t m_start;
    std::size_t m_firstIndex;  ///< in the base
    std::vector<Row> m_single; ///< a prime each, from the first on
    std::vector<Row> m_rows;   ///< then primes by the row
    AlignedVector<std::uint16_t> m_primes;
    AlignedVector<std::uint16_t> m_first; ///< the next positions, from the begin of the block
    AlignedVector<std::uint16_t> m_second;
    AlignedVector<std::uint8_t> m_bytes; ///< the block, and bytes that are never read behind it
};

} // namespace bignum::sieve
