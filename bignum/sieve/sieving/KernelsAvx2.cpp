// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/AlignedVector.h"
#include "bignum/sieve/plan/Parameters.h"
#include "bignum/sieve/sieving/KernelSets.h"

#if BIGNUM_SIEVE_X86

#include <algorithm>
#include <array>
#include <bit>
#include <immintrin.h>

// These functions alone are compiled for AVX2, and called where the processor has it.
#define BIGNUM_AVX2 __attribute__((target("avx2,popcnt")))

namespace bignum::sieve {

namespace {

constexpr std::size_t kWidth = 8;   // 32-bit lanes
constexpr std::size_t kChunk = 512; // primes whose positions stay in the first-level cache

BIGNUM_AVX2 inline __m256i load(const std::uint32_t *from)
{
    return _mm256_loadu_si256(reinterpret_cast<const __m256i *>(from));
}

BIGNUM_AVX2 inline void store(std::uint32_t *to, __m256i value)
{
    _mm256_storeu_si256(reinterpret_cast<__m256i *>(to), value);
}

BIGNUM_AVX2 inline __m256i splat(std::uint32_t value)
{
    return _mm256_set1_epi32(static_cast<int>(value));
}

/// A bit for each lane that is all ones.
BIGNUM_AVX2 inline unsigned laneMask(__m256i lanes)
{
    return static_cast<unsigned>(_mm256_movemask_ps(_mm256_castsi256_ps(lanes)));
}

/// a·b mod p. The quotient may be one too large or too small, and the remainder then wraps around
/// or is not below p: the less is right.
BIGNUM_AVX2 inline __m256i multiply(__m256i a, __m256i b, __m256i p, __m256 inverse)
{
    const __m256 product = _mm256_mul_ps(_mm256_cvtepi32_ps(a), _mm256_cvtepi32_ps(b));
    const __m256i quotient = _mm256_cvttps_epi32(_mm256_mul_ps(product, inverse));
    const __m256i rest =
        _mm256_sub_epi32(_mm256_mullo_epi32(a, b), _mm256_mullo_epi32(quotient, p));
    const __m256i low = _mm256_min_epu32(rest, _mm256_add_epi32(rest, p));
    return _mm256_min_epu32(low, _mm256_sub_epi32(low, p));
}

BIGNUM_AVX2 void addRow(const FamilyRow &row, std::size_t size)
{
    const __m256i gamma = splat(row.gamma);
    for (std::size_t i = 0; i < size; i += kWidth) {
        const __m256i p = load(row.moduli + i);
        const __m256 inverse = _mm256_loadu_ps(row.inverses + i);
        const __m256i inverseQ = load(row.inverseQ + i);
        const __m256i shift = multiply(gamma, inverseQ, p, inverse);
        const __m256i sum = _mm256_add_epi32(load(row.sum + i), shift);
        const __m256i product = multiply(load(row.product + i), inverseQ, p, inverse);
        store(row.shifts + i, shift);
        store(row.sum + i, _mm256_min_epu32(sum, _mm256_sub_epi32(sum, p)));
        store(row.product + i, product);
    }
}

/// Moves 8 roots down by the shift, or up, which is down by what the modulus has beyond the shift.
/// Below 0 they wrap around to large numbers, and with the modulus added the less is right.
BIGNUM_AVX2 inline __m256i moveRoots(std::uint32_t *roots, __m256i down, __m256i modulus)
{
    const __m256i moved = _mm256_sub_epi32(load(roots), down);
    const __m256i root = _mm256_min_epu32(moved, _mm256_add_epi32(moved, modulus));
    store(roots, root);
    return root;
}

BIGNUM_AVX2 inline __m256i wayDown(__m256i shift, __m256i modulus, __m256i up)
{
    return _mm256_blendv_epi8(shift, _mm256_sub_epi32(modulus, shift), up);
}

BIGNUM_AVX2 void move(const Roots &roots, std::size_t begin, std::size_t end, bool down)
{
    const Roots at = roots;
    const __m256i up = _mm256_set1_epi32(down ? 0 : -1);
    for (std::size_t i = begin; i < end; i += kWidth) {
        const __m256i modulus = load(at.moduli + i);
        const __m256i way = wayDown(load(at.shifts + i), modulus, up);
        moveRoots(at.first + i, way, modulus);
        moveRoots(at.second + i, way, modulus);
    }
}

/// The next positions of the roots of one chunk of primes: none is before the block at hand.
struct Chunk
{
    alignas(kLine) std::uint32_t first[kChunk];
    alignas(kLine) std::uint32_t second[kChunk];
};

/// For each mask of lanes, the numbers of its lanes from the first byte on.
constexpr auto kPacked = [] {
    std::array<std::uint64_t, 1U << kWidth> packed{};
    for (unsigned mask = 0; mask < packed.size(); ++mask)
        for (unsigned lane = kWidth; lane-- > 0;)
            if ((mask >> lane) % 2 != 0)
                packed[mask] = packed[mask] << 8 | lane;
    return packed;
}();

/// Appends those of 8 positions that are in the block which ends at `blockEnd` to its bucket, and
/// goes on to the next ones of their primes.
BIGNUM_AVX2 inline std::uint32_t *enter(std::uint32_t *positions, __m256i modulus, __m256i tags,
                                        __m256i blockEnd, std::uint32_t *bucketEnd)
{
    const __m256i at = load(positions);
    const __m256i inside = _mm256_cmpgt_epi32(blockEnd, at);
    const unsigned mask = laneMask(inside);
    const __m256i entry = _mm256_or_si256(tags, _mm256_and_si256(at, splat(kBlockSize - 1)));
    const __m256i order =
        _mm256_cvtepu8_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i *>(&kPacked[mask])));
    store(bucketEnd, _mm256_permutevar8x32_epi32(entry, order));
    store(positions, _mm256_add_epi32(at, _mm256_and_si256(inside, modulus)));
    return bucketEnd + _mm_popcnt_u32(mask);
}

/// A block at a time, so that the end of one bucket alone is at work and stays in a register.
BIGNUM_AVX2 void fillChunk(Chunk &chunk, const std::uint32_t *moduli, std::size_t size,
                           std::uint32_t firstTag, std::uint32_t interval,
                           std::uint32_t **bucketEnds)
{
    const __m256i lanes = _mm256_set_epi32(7, 6, 5, 4, 3, 2, 1, 0);
    const __m256i firstTags = _mm256_slli_epi32(_mm256_add_epi32(lanes, splat(firstTag)), 16);
    for (std::uint32_t blockEnd = kBlockSize; blockEnd <= interval; blockEnd += kBlockSize) {
        const __m256i limit = splat(blockEnd);
        __m256i tags = firstTags;
        std::uint32_t *end = *bucketEnds;
        for (std::size_t i = 0; i < size; i += kWidth) {
            const __m256i modulus = load(moduli + i);
            end = enter(chunk.first + i, modulus, tags, limit, end);
            end = enter(chunk.second + i, modulus, tags, limit, end);
            tags = _mm256_add_epi32(tags, splat(kWidth << 16));
        }
        *bucketEnds++ = end;
    }
}

BIGNUM_AVX2 void moveAndFill(const Roots &roots, std::size_t begin, std::size_t end, bool down,
                             std::uint32_t interval, std::uint32_t **bucketEnds)
{
    const Roots all = roots;
    const __m256i up = _mm256_set1_epi32(down ? 0 : -1);
    Chunk chunk;
    for (std::size_t at = begin; at < end; at += kChunk) {
        const std::size_t size = std::min(kChunk, end - at);
        for (std::size_t i = 0; i < size; i += kWidth) {
            const __m256i modulus = load(all.moduli + at + i);
            const __m256i way = wayDown(load(all.shifts + at + i), modulus, up);
            store(chunk.first + i, moveRoots(all.first + at + i, way, modulus));
            store(chunk.second + i, moveRoots(all.second + at + i, way, modulus));
        }
        fillChunk(chunk, all.moduli + at, size, static_cast<std::uint32_t>(at - begin), interval,
                  bucketEnds);
    }
}

BIGNUM_AVX2 std::size_t findHighBytes(const std::uint8_t *block, std::uint16_t *places)
{
    std::size_t count = 0;
    for (std::uint32_t i = 0; i < kBlockSize; i += 32) {
        const __m256i bytes = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(block + i));
        auto mask = static_cast<unsigned>(_mm256_movemask_epi8(bytes));
        for (; mask != 0; mask &= mask - 1)
            places[count++] =
                static_cast<std::uint16_t>(i + static_cast<unsigned>(std::countr_zero(mask)));
    }
    return count;
}

BIGNUM_AVX2 std::size_t findRoots(const Roots &roots, std::size_t begin, std::size_t end,
                                  std::uint32_t position, std::span<std::uint32_t> found)
{
    std::size_t count = 0;
    const __m256i at = splat(position);
    const __m256 middle = _mm256_set1_ps(static_cast<float>(position) + 0.5F);
    for (std::size_t i = begin; i < end; i += kWidth) {
        const __m256 quotient = _mm256_mul_ps(middle, _mm256_loadu_ps(roots.inverses + i));
        const __m256i multiple =
            _mm256_mullo_epi32(_mm256_cvttps_epi32(quotient), load(roots.moduli + i));
        const __m256i residue = _mm256_sub_epi32(at, multiple);
        const __m256i equal = _mm256_or_si256(_mm256_cmpeq_epi32(residue, load(roots.first + i)),
                                              _mm256_cmpeq_epi32(residue, load(roots.second + i)));
        for (unsigned mask = laneMask(equal); mask != 0; mask &= mask - 1) {
            const std::size_t index = i + static_cast<unsigned>(std::countr_zero(mask));
            if (index < end && count < found.size())
                found[count++] = static_cast<std::uint32_t>(index);
        }
    }
    return count;
}

BIGNUM_AVX2 std::size_t findEntries(std::span<const std::uint32_t> bucket, std::uint32_t position,
                                    std::span<std::uint32_t> found)
{
    std::size_t count = 0;
    const __m256i wanted = splat(position);
    const __m256i low = splat(0xFFFF);
    for (std::size_t i = 0; i < bucket.size(); i += kWidth) {
        const __m256i places = _mm256_and_si256(load(bucket.data() + i), low);
        for (unsigned mask = laneMask(_mm256_cmpeq_epi32(places, wanted)); mask != 0;
             mask &= mask - 1) {
            const std::size_t at = i + static_cast<unsigned>(std::countr_zero(mask));
            if (at < bucket.size() && count < found.size())
                found[count++] = bucket[at] >> 16;
        }
    }
    return count;
}

} // namespace

const Kernels kAvx2Kernels{addRow, move, moveAndFill, findHighBytes, findRoots, findEntries};

} // namespace bignum::sieve

#endif
