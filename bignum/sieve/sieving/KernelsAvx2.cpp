#include "bignum/sieve/plan/Parameters.h"
#include "bignum/sieve/sieving/KernelSets.h"

#if BIGNUM_SIEVE_X86

#include <bit>
#include <immintrin.h>

// These functions alone are compiled for AVX2, and called where the processor has it.
#define BIGNUM_AVX2 __attribute__((target("avx2")))

namespace bignum::sieve {

namespace {

constexpr std::size_t kWidth = 8; // 32-bit lanes

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

/// One of the two sums is beyond the modulus, or wraps around to a large number: the less is right.
BIGNUM_AVX2 inline __m256i moveRoots(std::uint32_t *roots, __m256i shift, __m256i modulus,
                                     bool down)
{
    const __m256i old = load(roots);
    const __m256i near = down ? _mm256_sub_epi32(old, shift) : _mm256_add_epi32(old, shift);
    const __m256i far = down ? _mm256_add_epi32(near, modulus) : _mm256_sub_epi32(near, modulus);
    const __m256i root = _mm256_min_epu32(near, far);
    store(roots, root);
    return root;
}

BIGNUM_AVX2 void move(const Roots &roots, std::size_t begin, std::size_t end, bool down)
{
    for (std::size_t i = begin; i < end; i += kWidth) {
        const __m256i modulus = load(roots.moduli + i);
        const __m256i shift = load(roots.shifts + i);
        moveRoots(roots.first + i, shift, modulus, down);
        moveRoots(roots.second + i, shift, modulus, down);
    }
}

BIGNUM_AVX2 inline void fill(__m256i at, __m256i modulus, std::uint32_t tag, std::uint32_t interval,
                             std::uint32_t **bucketEnds)
{
    const __m256i limit = splat(interval);
    unsigned mask = laneMask(_mm256_cmpgt_epi32(limit, at));
    while (mask != 0) {
        alignas(32) std::uint32_t positions[kWidth];
        store(positions, at);
        for (; mask != 0; mask &= mask - 1) {
            const auto lane = static_cast<std::uint32_t>(std::countr_zero(mask));
            const std::uint32_t position = positions[lane];
            *bucketEnds[position / kBlockSize]++ = tag + (lane << 16) + position % kBlockSize;
        }
        at = _mm256_add_epi32(at, modulus);
        mask = laneMask(_mm256_cmpgt_epi32(limit, at));
    }
}

BIGNUM_AVX2 void moveAndFill(const Roots &roots, std::size_t begin, std::size_t end, bool down,
                             std::uint32_t interval, std::uint32_t **bucketEnds)
{
    for (std::size_t i = begin; i < end; i += kWidth) {
        const auto tag = static_cast<std::uint32_t>(i - begin) << 16;
        const __m256i modulus = load(roots.moduli + i);
        const __m256i shift = load(roots.shifts + i);
        const __m256i first = moveRoots(roots.first + i, shift, modulus, down);
        const __m256i second = moveRoots(roots.second + i, shift, modulus, down);
        fill(first, modulus, tag, interval, bucketEnds);
        fill(second, modulus, tag, interval, bucketEnds);
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

const Kernels kAvx2Kernels{move, moveAndFill, findHighBytes, findRoots, findEntries};

} // namespace bignum::sieve

#endif
