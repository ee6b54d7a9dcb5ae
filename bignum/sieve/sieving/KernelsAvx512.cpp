// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/AlignedVector.h"
#include "bignum/sieve/plan/Parameters.h"
#include "bignum/sieve/sieving/KernelSets.h"

#if BIGNUM_SIEVE_X86

#include <algorithm>
#include <bit>
#include <immintrin.h>

// These functions alone are compiled for AVX-512, and called where the processor has it.
#define BIGNUM_AVX512 __attribute__((target("avx512f,avx512bw,popcnt")))

namespace bignum::sieve {

namespace {

constexpr std::size_t kWidth = 16;  // 32-bit lanes
constexpr std::size_t kChunk = 512; // primes whose positions stay in the first-level cache

BIGNUM_AVX512 inline __m512i splat(std::uint32_t value)
{
    return _mm512_set1_epi32(static_cast<int>(value));
}

/// a·b mod p. The quotient may be one too large or too small, and the remainder then wraps around
/// or is not below p: the less is right.
BIGNUM_AVX512 inline __m512i multiply(__m512i a, __m512i b, __m512i p, __m512 inverse)
{
    const __m512 product = _mm512_mul_ps(_mm512_cvtepi32_ps(a), _mm512_cvtepi32_ps(b));
    const __m512i quotient = _mm512_cvttps_epi32(_mm512_mul_ps(product, inverse));
    const __m512i rest =
        _mm512_sub_epi32(_mm512_mullo_epi32(a, b), _mm512_mullo_epi32(quotient, p));
    const __m512i low = _mm512_min_epu32(rest, _mm512_add_epi32(rest, p));
    return _mm512_min_epu32(low, _mm512_sub_epi32(low, p));
}

BIGNUM_AVX512 void addRow(const FamilyRow &row, std::size_t size)
{
    const __m512i gamma = splat(row.gamma);
    for (std::size_t i = 0; i < size; i += kWidth) {
        const __m512i p = _mm512_loadu_si512(row.moduli + i);
        const __m512 inverse = _mm512_loadu_ps(row.inverses + i);
        const __m512i inverseQ = _mm512_loadu_si512(row.inverseQ + i);
        const __m512i shift = multiply(gamma, inverseQ, p, inverse);
        const __m512i sum = _mm512_add_epi32(_mm512_loadu_si512(row.sum + i), shift);
        const __m512i product = _mm512_loadu_si512(row.product + i);
        _mm512_storeu_si512(row.shifts + i, shift);
        _mm512_storeu_si512(row.sum + i, _mm512_min_epu32(sum, _mm512_sub_epi32(sum, p)));
        _mm512_storeu_si512(row.product + i, multiply(product, inverseQ, p, inverse));
    }
}

/// Moves 16 roots down by the shift, or up, which is down by what the modulus has beyond the shift.
/// Below 0 they wrap around to large numbers, and with the modulus added the less is right.
BIGNUM_AVX512 inline __m512i moveRoots(std::uint32_t *roots, __m512i down, __m512i modulus)
{
    const __m512i moved = _mm512_sub_epi32(_mm512_loadu_si512(roots), down);
    const __m512i root = _mm512_min_epu32(moved, _mm512_add_epi32(moved, modulus));
    _mm512_storeu_si512(roots, root);
    return root;
}

BIGNUM_AVX512 inline __m512i wayDown(__m512i shift, __m512i modulus, __mmask16 up)
{
    return _mm512_mask_sub_epi32(shift, up, modulus, shift);
}

BIGNUM_AVX512 void move(const Roots &roots, std::size_t begin, std::size_t end, bool down)
{
    const Roots at = roots;
    const auto up = static_cast<__mmask16>(down ? 0 : 0xFFFF);
    for (std::size_t i = begin; i < end; i += kWidth) {
        const __m512i modulus = _mm512_loadu_si512(at.moduli + i);
        const __m512i way = wayDown(_mm512_loadu_si512(at.shifts + i), modulus, up);
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

/// Appends those of 16 positions that are in the block which ends at `blockEnd` to its bucket, and
/// goes on to the next ones of their primes.
BIGNUM_AVX512 inline std::uint32_t *enter(std::uint32_t *positions, __m512i modulus, __m512i tags,
                                          __m512i blockEnd, std::uint32_t *bucketEnd)
{
    const __m512i at = _mm512_load_si512(positions);
    const __mmask16 inside = _mm512_cmplt_epu32_mask(at, blockEnd);
    const __m512i entry = _mm512_or_si512(tags, _mm512_and_si512(at, splat(kBlockSize - 1)));
    _mm512_storeu_si512(bucketEnd, _mm512_maskz_compress_epi32(inside, entry));
    _mm512_store_si512(positions, _mm512_mask_add_epi32(at, inside, at, modulus));
    return bucketEnd + _mm_popcnt_u32(inside);
}

/// A block at a time, so that the end of one bucket alone is at work and stays in a register.
BIGNUM_AVX512 void fillChunk(Chunk &chunk, const std::uint32_t *moduli, std::size_t size,
                             std::uint32_t firstTag, std::uint32_t interval,
                             std::uint32_t **bucketEnds)
{
    const __m512i lanes = _mm512_set_epi32(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0);
    const __m512i firstTags = _mm512_slli_epi32(_mm512_add_epi32(lanes, splat(firstTag)), 16);
    for (std::uint32_t blockEnd = kBlockSize; blockEnd <= interval; blockEnd += kBlockSize) {
        const __m512i limit = splat(blockEnd);
        __m512i tags = firstTags;
        std::uint32_t *end = *bucketEnds;
        for (std::size_t i = 0; i < size; i += kWidth) {
            const __m512i modulus = _mm512_loadu_si512(moduli + i);
            end = enter(chunk.first + i, modulus, tags, limit, end);
            end = enter(chunk.second + i, modulus, tags, limit, end);
            tags = _mm512_add_epi32(tags, splat(kWidth << 16));
        }
        *bucketEnds++ = end;
    }
}

BIGNUM_AVX512 void moveAndFill(const Roots &roots, std::size_t begin, std::size_t end, bool down,
                               std::uint32_t interval, std::uint32_t **bucketEnds)
{
    const Roots all = roots;
    const auto up = static_cast<__mmask16>(down ? 0 : 0xFFFF);
    Chunk chunk;
    for (std::size_t at = begin; at < end; at += kChunk) {
        const std::size_t size = std::min(kChunk, end - at);
        for (std::size_t i = 0; i < size; i += kWidth) {
            const __m512i modulus = _mm512_loadu_si512(all.moduli + at + i);
            const __m512i way = wayDown(_mm512_loadu_si512(all.shifts + at + i), modulus, up);
            _mm512_store_si512(chunk.first + i, moveRoots(all.first + at + i, way, modulus));
            _mm512_store_si512(chunk.second + i, moveRoots(all.second + at + i, way, modulus));
        }
        fillChunk(chunk, all.moduli + at, size, static_cast<std::uint32_t>(at - begin), interval,
                  bucketEnds);
    }
}

BIGNUM_AVX512 std::size_t findHighBytes(const std::uint8_t *block, std::uint16_t *places)
{
    std::size_t count = 0;
    for (std::uint32_t i = 0; i < kBlockSize; i += 64) {
        std::uint64_t mask = _mm512_movepi8_mask(_mm512_loadu_si512(block + i));
        for (; mask != 0; mask &= mask - 1)
            places[count++] =
                static_cast<std::uint16_t>(i + static_cast<unsigned>(std::countr_zero(mask)));
    }
    return count;
}

BIGNUM_AVX512 std::size_t findRoots(const Roots &roots, std::size_t begin, std::size_t end,
                                    std::uint32_t position, std::span<std::uint32_t> found)
{
    std::size_t count = 0;
    const __m512i at = splat(position);
    const __m512 middle = _mm512_set1_ps(static_cast<float>(position) + 0.5F);
    for (std::size_t i = begin; i < end; i += kWidth) {
        const __m512 quotient = _mm512_mul_ps(middle, _mm512_loadu_ps(roots.inverses + i));
        const __m512i multiple =
            _mm512_mullo_epi32(_mm512_cvttps_epi32(quotient), _mm512_loadu_si512(roots.moduli + i));
        const __m512i residue = _mm512_sub_epi32(at, multiple);
        unsigned mask = _mm512_cmpeq_epi32_mask(residue, _mm512_loadu_si512(roots.first + i)) |
                        static_cast<unsigned>(
                            _mm512_cmpeq_epi32_mask(residue, _mm512_loadu_si512(roots.second + i)));
        for (; mask != 0; mask &= mask - 1) {
            const std::size_t index = i + static_cast<unsigned>(std::countr_zero(mask));
            if (index < end && count < found.size())
                found[count++] = static_cast<std::uint32_t>(index);
        }
    }
    return count;
}

BIGNUM_AVX512 std::size_t findEntries(std::span<const std::uint32_t> bucket, std::uint32_t position,
                                      std::span<std::uint32_t> found)
{
    std::size_t count = 0;
    const __m512i wanted = splat(position);
    const __m512i low = splat(0xFFFF);
    for (std::size_t i = 0; i < bucket.size(); i += kWidth) {
        const __m512i places = _mm512_and_si512(_mm512_loadu_si512(bucket.data() + i), low);
        unsigned mask = _mm512_cmpeq_epi32_mask(places, wanted);
        for (; mask != 0; mask &= mask - 1) {
            const std::size_t index = i + static_cast<unsigned>(std::countr_zero(mask));
            if (index < bucket.size() && count < found.size())
                found[count++] = bucket[index] >> 16;
        }
    }
    return count;
}

} // namespace

const Kernels kAvx512Kernels{addRow, move, moveAndFill, findHighBytes, findRoots, findEntries};

} // namespace bignum::sieve

#endif
