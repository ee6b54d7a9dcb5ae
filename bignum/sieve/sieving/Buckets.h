// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/AlignedVector.h"
#include "bignum/sieve/sieving/BaseParts.h"

namespace bignum::sieve {

/// The positions of the primes beyond a block, for all blocks of a polynomial, sorted by block as
/// they are found: each block then takes its own while it is in the cache (K. Aoki and H. Ueda,
/// "Sieving using bucket sort", 2004).
class Buckets
{
public:
    Buckets(const Plan &plan, const BaseParts &parts);

    /// Moves the roots from bucketed on and sorts the positions of the new polynomial.
    void fill(const Roots &roots, bool down);

    /// Subtracts the logarithms of the primes at their positions in a block.
    void apply(std::size_t block, std::uint8_t *bytes) const;

    /// The base indices of the bucketed primes at a place of a block; their number.
    std::size_t find(std::size_t block, std::uint32_t place, std::span<std::uint32_t> found) const;

private:
    std::span<const std::uint32_t> entries(std::size_t slice, std::size_t block) const;

    const Kernels &m_kernels;
    const BaseParts &m_parts;
    std::uint32_t m_interval;
    std::size_t m_blocks;
    std::size_t m_capacity; ///< of a bucket
    AlignedVector<std::uint32_t> m_storage;
    /// Where the entries of each block end after each slice; the first row is where they begin.
    std::vector<std::uint32_t *> m_ends;
};

} // namespace bignum::sieve
