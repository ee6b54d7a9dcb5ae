#include "bignum/sieve/plan/Parameters.h"
#include "bignum/sieve/plan/SmallModulus.h"
#include "bignum/sieve/sieving/KernelSets.h"

#include <bit>
#include <cstring>

namespace bignum::sieve {

namespace {

constexpr std::uint64_t kTopBits = 0x8080808080808080;

std::uint32_t moved(std::uint32_t root, std::uint32_t shift, std::uint32_t modulus, bool down)
{
    if (down)
        return root >= shift ? root - shift : root + modulus - shift;
    const std::uint32_t sum = root + shift;
    return sum >= modulus ? sum - modulus : sum;
}

void addRow(const FamilyRow &row, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i) {
        const std::uint32_t p = row.moduli[i];
        row.shifts[i] = multiplyModulo(row.gamma, row.inverseQ[i], p);
        row.sum[i] = moved(row.sum[i], row.shifts[i], p, false);
        row.product[i] = multiplyModulo(row.product[i], row.inverseQ[i], p);
    }
}

void move(const Roots &roots, std::size_t begin, std::size_t end, bool down)
{
    for (std::size_t i = begin; i < end; ++i) {
        roots.first[i] = moved(roots.first[i], roots.shifts[i], roots.moduli[i], down);
        roots.second[i] = moved(roots.second[i], roots.shifts[i], roots.moduli[i], down);
    }
}

void moveAndFill(const Roots &roots, std::size_t begin, std::size_t end, bool down,
                 std::uint32_t interval, std::uint32_t **bucketEnds)
{
    for (std::size_t i = begin; i < end; ++i) {
        const auto tag = static_cast<std::uint32_t>(i - begin) << 16;
        for (std::uint32_t *root : {&roots.first[i], &roots.second[i]}) {
            *root = moved(*root, roots.shifts[i], roots.moduli[i], down);
            for (std::uint32_t at = *root; at < interval; at += roots.moduli[i])
                *bucketEnds[at / kBlockSize]++ = tag | at % kBlockSize;
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

std::size_t findRoots(const Roots &roots, std::size_t begin, std::size_t end,
                      std::uint32_t position, std::span<std::uint32_t> found)
{
    std::size_t count = 0;
    // The half keeps the quotient off the integers by more than a float's error, below 2^22.
    const float at = static_cast<float>(position) + 0.5F;
    for (std::size_t i = begin; i < end; ++i) {
        const auto quotient = static_cast<std::uint32_t>(at * roots.inverses[i]);
        const std::uint32_t residue = position - quotient * roots.moduli[i];
        if ((residue == roots.first[i] || residue == roots.second[i]) && count < found.size())
            found[count++] = static_cast<std::uint32_t>(i);
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
