// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/interface/Entry.h"

#include "bignum/primes/Primality.h"
#include "bignum/primes/PrimeList.h"
#include "bignum/primes/RandomPrime.h"

using namespace bignum;

namespace {

constexpr unsigned kMaxPrimeSearchBits = 10000;

bool isInPrimeSearchRange(const mpz_class &n)
{
    return mpz_sizeinbase(n.get_mpz_t(), 2) <= kMaxPrimeSearchBits;
}

} // namespace

int32_t IsPrime(const char *n)
{
    return guarded(0, [&] {
        const auto number = integerOf(n);
        return number && isPrime(*number);
    });
}

int32_t NextPrime(const char *n, char *out)
{
    return writeResult(out, kNumberBuffer, [&]() -> std::optional<mpz_class> {
        const auto number = integerOf(n);
        if (!number || (*number > 0 && !isInPrimeSearchRange(*number)))
            return std::nullopt;
        return nextPrime(*number);
    });
}

int32_t RndPrimo(int32_t bits, char *out)
{
    return writeResult(out, kNumberBuffer, [&]() -> std::optional<mpz_class> {
        if (bits < 2 || bits > static_cast<int32_t>(kMaxPrimeSearchBits))
            return std::nullopt;
        return randomPrime(static_cast<unsigned>(bits));
    });
}

int32_t ListPrimes(int32_t limit)
{
    return guarded(0, [&] { return countPrimes(limit); });
}

int32_t PrimesBetween(int64_t first, int64_t last, BignumPrimeBlock block, void *context)
{
    const auto handOver = [&](std::span<const std::uint64_t> primes) {
        return block(primes.data(), static_cast<int64_t>(primes.size()), context) != 0;
    };
    return guarded(0, [&] { return block != nullptr && streamPrimes(first, last, handOver); });
}
