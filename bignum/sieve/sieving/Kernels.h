// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace bignum::sieve {

/// The vectors that the inner loops are written for. Each gives the same results.
enum class VectorLevel { Plain, Avx2, Avx512 };

/// Elements that a kernel takes at once; ranges begin at multiples of it unless told otherwise.
constexpr std::size_t kLanes = 16;

/// The modulus, and the root, of the places that stand for no prime: a root that stays where it is
/// and meets no position.
constexpr std::uint32_t kNoModulus = 0x7FFFFFFF;
constexpr std::uint32_t kNoRoot = 0x7FFFFFFE;

/// Quotients of products by smaller moduli are right to one unit when they are found with floats.
constexpr std::uint32_t kModulusBound = 1U << 22;

/// The two roots of a polynomial modulo each prime, as positions below the prime, and by how much
/// they move to the next polynomial. By base index, each array on a cache line of its own.
struct Roots
{
    const std::uint32_t *moduli;
    const float *inverses; ///< of the moduli
    std::uint32_t *first;
    std::uint32_t *second;
    const std::uint32_t *shifts; ///< below the moduli
};

/// What is made modulo each prime, factor q of `a` after factor. By base index.
struct FamilyRow
{
    const std::uint32_t *moduli;
    const float *inverses;         ///< of the moduli
    const std::uint32_t *inverseQ; ///< 1/q
    std::uint32_t gamma;           ///< below 2^31, as the moduli
    std::uint32_t *shifts;         ///< becomes gamma/q
    std::uint32_t *sum;            ///< to which gamma/q is added
    std::uint32_t *product;        ///< which is multiplied by 1/q
};

/// The inner loops that vectors make faster, in the version for one level.
struct Kernels
{
    /// Takes a factor of `a` into account for 0 <= index < size, a multiple of kLanes. The moduli
    /// are kNoModulus, where all is 0, or below kModulusBound.
    void (*addRow)(const FamilyRow &row, std::size_t size);

    /// Moves the roots of begin <= index < end, a multiple of kLanes each.
    void (*move)(const Roots &roots, std::size_t begin, std::size_t end, bool down);

    /// The same, and enters each position below `interval` that a prime divides at the end of the
    /// bucket of its block: (index - begin)·2^16 + position within the block.
    void (*moveAndFill)(const Roots &roots, std::size_t begin, std::size_t end, bool down,
                        std::uint32_t interval, std::uint32_t **bucketEnds);

    /// The places of the bytes from 128 on in a block; their number.
    std::size_t (*findHighBytes)(const std::uint8_t *block, std::uint16_t *places);

    /// The indices begin <= index < end of the primes that have a root at `position` < 2^20, as
    /// many as `found` can hold; their number. `begin` and `end` are any.
    std::size_t (*findRoots)(const Roots &roots, std::size_t begin, std::size_t end,
                             std::uint32_t position, std::span<std::uint32_t> found);

    /// What entries of a bucket with this position hold above it.
    std::size_t (*findEntries)(std::span<const std::uint32_t> bucket, std::uint32_t position,
                               std::span<std::uint32_t> found);
};

/// The best level that this processor and this build know.
VectorLevel bestVectorLevel();

/// The kernels of a level that is at most the best.
const Kernels &kernelsFor(VectorLevel level);

} // namespace bignum::sieve
