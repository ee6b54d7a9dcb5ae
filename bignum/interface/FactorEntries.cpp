// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/interface/Entry.h"

#include "bignum/factoring/Factorization.h"

#include <chrono>
#include <string>
#include <vector>

using namespace bignum;

namespace {

/// Two arrays of `count` buffers that take a factorization, entry by entry.
struct FactorBuffers
{
    char *const *bases;
    char *const *exponents;
    std::size_t count;

    void clear() const
    {
        for (char *const *array : {bases, exponents})
            for (std::size_t i = 0; array != nullptr && i < count; ++i)
                writeText({}, array[i], 1);
    }

    bool write(const std::vector<FoundFactor> &powers) const
    {
        if (powers.size() > count || (count > 0 && (bases == nullptr || exponents == nullptr)))
            return false;
        for (std::size_t i = 0; i < powers.size(); ++i) {
            const std::string exponent = std::to_string(powers[i].exponent);
            if (!writeText(toText(powers[i].base), bases[i], kNumberBuffer) ||
                !writeText(exponent, exponents[i], kNumberBuffer))
                return false;
        }
        return true;
    }
};

double secondsOf(std::chrono::steady_clock::duration time)
{
    return std::chrono::duration<double>(time).count();
}

BignumFactor toldOf(const FoundFactor &factor, const std::string &base)
{
    const Discovery &how = factor.how;
    return {.base = base.c_str(),
            .exponent = static_cast<int64_t>(factor.exponent),
            .isPrime = factor.prime ? 1 : 0,
            .method = static_cast<int32_t>(how.method),
            .curveBound = how.curveBound,
            .curves = how.curves,
            .relations = static_cast<int64_t>(how.sieve.relations),
            .partials = static_cast<int64_t>(how.sieve.partials),
            .polynomials = static_cast<int64_t>(how.sieve.polynomials),
            .basePrimes = static_cast<int64_t>(how.sieve.base),
            .columns = static_cast<int64_t>(how.sieve.columns),
            .methodSeconds = secondsOf(how.took),
            .seconds = secondsOf(factor.after)};
}

int32_t endCode(SearchEnd end)
{
    switch (end) {
    case SearchEnd::Complete:
        return BIGNUM_ALL_PRIMES;
    case SearchEnd::CompositeLeft:
        return BIGNUM_COMPOSITE_LEFT;
    case SearchEnd::Stopped:
        return BIGNUM_FACTORS_STOPPED;
    }
    return BIGNUM_FACTORS_FAILED;
}

} // namespace

int32_t Factors(const char *n, char *const *primes, char *const *exponents, int32_t count)
{
    const FactorBuffers buffers{primes, exponents, count < 0 ? 0 : static_cast<std::size_t>(count)};
    buffers.clear();
    const auto end = guarded<std::optional<SearchEnd>>({}, [&]() -> std::optional<SearchEnd> {
        const auto number = integerOf(n);
        if (!number)
            return std::nullopt;
        const Factorization factors = factorize(*number, Effort::Full);
        return buffers.write(factors.powers) ? std::optional(factors.end) : std::nullopt;
    });
    if (!end)
        buffers.clear();
    return end == SearchEnd::Complete ? 1 : 0;
}

int32_t FactorsAsFound(const char *n, BignumFactorFound found, void *context)
{
    return guarded<int32_t>(BIGNUM_FACTORS_FAILED, [&]() -> int32_t {
        const auto number = integerOf(n);
        if (!number)
            return BIGNUM_NO_NUMBER;
        if (found == nullptr)
            return BIGNUM_FACTORS_FAILED;
        const auto hand = [&](const FoundFactor &factor) {
            const std::string base = toText(factor.base);
            const BignumFactor told = toldOf(factor, base);
            return found(&told, context) != 0;
        };
        return endCode(findFactors(*number, Effort::Full, hand));
    });
}

int32_t EulerFi(const char *n, char *out)
{
    return writeResult(out, kNumberBuffer, [&]() -> std::optional<mpz_class> {
        const auto number = integerOf(n);
        if (!number)
            return std::nullopt;
        return eulerPhi(*number, Effort::Full);
    });
}
