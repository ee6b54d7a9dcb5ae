// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/plan/Parameters.h"
#include "bignum/sieve/plan/SmallModulus.h"
#include "bignum/sieve/sieving/KernelSets.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace bignum::sieve {

namespace {

constexpr std::uint64_t kTopBits = 0x8080808080808080;

/// Vectors of the compiler's own: it makes of them what the machine has.
using Lanes [[gnu::vector_size(kLanes * 4)]] = std::int32_t;
using FloatLanes [[gnu::vector_size(kLanes * 4)]] = float;

template <typename Vector, typename T>
void load(Vector &lanes, const T *from)
{
    std::memcpy(&lanes, from, sizeof lanes);
}

/// Values below 2^31 on both sides: a sum that must be reduced is negative once the modulus is off.
void moveLanes(std::uint32_t *values, const std::uint32_t *shifts, const std::uint32_t *moduli,
               bool down)
{
    Lanes value;
    Lanes shift;
    Lanes modulus;
    load(value, values);
    load(shift, shifts);
    load(modulus, moduli);
    value = down ? value - shift : value + (shift - modulus);
    value += modulus & (value >> 31);
    std::memcpy(values, &value, sizeof value);
}

void addRow(const FamilyRow &row, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i) {
        const std::uint32_t p = row.moduli[i];
        row.shifts[i] = multiplyModulo(row.gamma, row.inverseQ[i], p);
        row.product[i] = multiplyModulo(row.product[i], row.inverseQ[i], p);
    }
    for (std::size_t i = 0; i < size; i += kLanes)
        moveLanes(row.sum + i, row.shifts + i, row.moduli + i, false);
}

void move(const Roots &roots, std::size_t begin, std::size_t end, bool down)
{
    for (std::size_t i = begin; i < end; i += kLanes) {
        moveLanes(roots.first + i, roots.shifts + i, roots.moduli + i, down);
        moveLanes(roots.second + i, roots.shifts + i, roots.moduli + i, down);
    }
}

/// Whether a position is in a block can not be foreseen: what is not is written as well, and
/// overwritten by the next.
void fillChunk(std::uint32_t *positions, const std::uint32_t *moduli, std::size_t size,
               std::uint32_t firstTag, std::uint32_t interval, std::uint32_t **bucketEnds)
{
    for (std::uint32_t blockEnd = kBlockSize; blockEnd <= interval; blockEnd += kBlockSize) {
        std::uint32_t *end = *bucketEnds;
        for (std::size_t i = 0; i < size; ++i) {
            const std::uint32_t at = positions[i];
            const std::uint32_t inside = at < blockEnd ? 1 : 0;
            *end = (firstTag + static_cast<std::uint32_t>(i)) << 16 | at % kBlockSize;
            end += inside;
            positions[i] = at + (moduli[i] & (0 - inside));
        }
        *bucketEnds++ = end;
    }
}

void moveAndFill(const Roots &roots, std::size_t begin, std::size_t end, bool down,
                 std::uint32_t interval, std::uint32_t **bucketEnds)
{
    constexpr std::size_t chunk = 512; // primes whose positions stay in the first-level cache
    std::uint32_t positions[chunk];
    move(roots, begin, end, down);
    for (std::size_t at = begin; at < end; at += chunk) {
        const std::size_t size = std::min(chunk, end - at);
        const auto tag = static_cast<std::uint32_t>(at - begin);
        for (const std::uint32_t *from : {roots.first + at, roots.second + at}) {
            std::copy_n(from, size, positions);
            fillChunk(positions, roots.moduli + at, size, tag, interval, bucketEnds);
        }
    }
}

std::size_t findHighBytes(const std::uint8_t *block, std::uint16_t *places)
{
    std::size_t count = 0;
    for (std::uint32_t i = 0; i < kBlockSize; i += 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, block + i, sizeof word);
        if ((word & kTopBits) == 0)
            continue;
        for (std::uint32_t j = i; j < i + 8; ++j)
            if (block[j] >= 128)
                places[count++] = static_cast<std::uint16_t>(j);
    }
    return count;
}

/// Whether the lanes from index i on have a root at the position, whose middle is `middle`.
void rootsAt(const Roots &roots, std::size_t i, std::uint32_t position, float middle, Lanes &hits)
{
    FloatLanes inverse;
    Lanes modulus;
    Lanes first;
    Lanes second;
    load(inverse, roots.inverses + i);
    load(modulus, roots.moduli + i);
    load(first, roots.first + i);
    load(second, roots.second + i);
    const Lanes quotient = __builtin_convertvector(middle * inverse, Lanes);
    const Lanes residue = static_cast<std::int32_t>(position) - quotient * modulus;
    hits = (residue == first) | (residue == second);
}

std::size_t findRoots(const Roots &roots, std::size_t begin, std::size_t end,
                      std::uint32_t position, std::span<std::uint32_t> found)
{
    std::size_t count = 0;
    // The half keeps the quotient off the integers by more than a float's error, below 2^22.
    const float middle = static_cast<float>(position) + 0.5F;
    for (std::size_t i = begin; i < end; i += kLanes) {
        Lanes hits;
        rootsAt(roots, i, position, middle, hits);
        std::uint64_t words[kLanes / 2];
        load(words, &hits);
        if (std::all_of(std::begin(words), std::end(words), [](auto word) { return word == 0; }))
            continue;
        for (std::size_t lane = 0; lane < std::min(kLanes, end - i); ++lane)
            if (hits[lane] != 0 && count < found.size())
                found[count++] = static_cast<std::uint32_t>(i + lane);
    }
    return count;
}

std::size_t findEntries(std::span<const std::uint32_t> bucket, std::uint32_t position,
                        std::span<std::uint32_t> found)
{
    std::size_t count = 0;
    for (const std::uint32_t entry : bucket)
        if ((entry & 0xFFFF) == position && count < found.size())
            found[count++] = entry >> 16;
    return count;
}

} // namespace

const Kernels kPlainKernels{addRow, move, moveAndFill, findHighBytes, findRoots, findEntries};

} // namespace bignum::sieve
