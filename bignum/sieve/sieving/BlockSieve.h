#pragma once

#include "bignum/sieve/sieving/AlignedVector.h"
#include "bignum/sieve/sieving/BaseParts.h"

#include <span>

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
    /// Primes that meet a block `hits` times or once more, all with one logarithm.
    struct Group
    {
        std::size_t begin;
        std::size_t end;
        std::uint8_t log;
        std::uint32_t hits;
    };

    void sieveMany(const Group &group);
    template <std::uint32_t Hits>
    void sieveFew(const Group &group);

    std::uint8_t m_start;
    std::size_t m_firstIndex;
    std::vector<Group> m_groups; ///< by index less m_firstIndex
    AlignedVector<std::uint16_t> m_primes;
    AlignedVector<std::uint16_t>
        m_first; ///< the next position of each prime, from the block's begin
    AlignedVector<std::uint16_t> m_second;
    AlignedVector<std::uint8_t> m_bytes; ///< the block, and bytes that are never read behind it
};

} // namespace bignum::sieve
