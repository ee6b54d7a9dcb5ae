// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/interface/Entry.h"

#include "bignum/arithmetic/FibonacciMethods.h"
#include "bignum/arithmetic/ModularArithmetic.h"
#include "bignum/expressions/Expression.h"

#include <chrono>
#include <vector>

using namespace bignum;

namespace {

mpz_class timedFibonacci(mpz_class (*method)(unsigned, Work &), unsigned n, int32_t turns,
                         BignumCost &cost)
{
    using Clock = std::chrono::steady_clock;
    mpz_class result;
    Work work;
    const auto begin = Clock::now();
    for (int32_t i = 0; i < turns; ++i) {
        work = {};
        result = method(n, work);
    }
    const std::chrono::nanoseconds spent = Clock::now() - begin;
    cost = {work.additions, work.products, spent.count()};
    return result;
}

mpz_class timedIteration(unsigned from, unsigned n, BignumCost &cost)
{
    using Clock = std::chrono::steady_clock;
    Work untimed;
    mpz_class current = fibonacciByDoubling(from, untimed);
    mpz_class next = fibonacciByDoubling(from + 1, untimed);
    Work work;
    const auto begin = Clock::now();
    iterateFibonacci(from, n, current, next, work);
    const std::chrono::nanoseconds spent = Clock::now() - begin;
    cost = {work.additions, work.products, spent.count()};
    return next;
}

} // namespace

int32_t BMcd(const char *a, const char *b, char *out)
{
    return writeResultOf(
        a, b, out, [](const mpz_class &x, const mpz_class &y) -> mpz_class { return gcd(x, y); });
}

int32_t BExMcd(const char *a, const char *b, char *d, char *x, char *y)
{
    clear({d, x, y});
    return guarded(0, [&] {
        const auto first = integerOf(a);
        const auto second = integerOf(b);
        if (!first || !second)
            return false;
        const ExtendedGcd result = extendedGcd(*first, *second);
        if (writeText(toText(result.gcd), d, kNumberBuffer) &&
            writeText(toText(result.x), x, kNumberBuffer) &&
            writeText(toText(result.y), y, kNumberBuffer))
            return true;
        clear({d, x, y});
        return false;
    });
}

int32_t BMod(const char *a, const char *m, char *out)
{
    return writeResultOf(a, m, out, modulo);
}

int32_t PowMod(const char *base, const char *exponent, const char *modulus, char *out)
{
    return writeResult(out, kNumberBuffer, [&]() -> std::optional<mpz_class> {
        const auto b = integerOf(base);
        const auto e = integerOf(exponent);
        const auto m = integerOf(modulus);
        if (!b || !e || !m)
            return std::nullopt;
        return powerMod(*b, *e, *m);
    });
}

int32_t InvMod(const char *a, const char *n, char *out)
{
    return writeResultOf(a, n, out, inverse);
}

int32_t CRT(const char *const *remainders, const char *const *moduli, int32_t count, char *out)
{
    return writeResult(out, kNumberBuffer, [&]() -> std::optional<mpz_class> {
        if (remainders == nullptr || moduli == nullptr)
            return std::nullopt;
        std::vector<Congruence> congruences;
        for (int32_t i = 0; i < count; ++i) {
            const auto remainder = integerOf(remainders[i]);
            const auto modulus = integerOf(moduli[i]);
            if (!remainder || !modulus)
                return std::nullopt;
            congruences.push_back({*remainder, *modulus});
        }
        return chineseRemainder(congruences);
    });
}

int32_t Fibonacci(int32_t method, int32_t n, int32_t turns, char *out, BignumCost *cost)
{
    return writeResult(out, kExpressionBuffer, [&]() -> std::optional<mpz_class> {
        if (cost == nullptr)
            return std::nullopt;
        *cost = {};
        const bool known = method == BIGNUM_ITERATION || method == BIGNUM_DOUBLING;
        if (!known || turns < 1 || n < 0 || n > static_cast<int32_t>(kMaxFibonacci))
            return std::nullopt;
        return timedFibonacci(method == BIGNUM_ITERATION ? fibonacciByIteration
                                                         : fibonacciByDoubling,
                              static_cast<unsigned>(n), turns, *cost);
    });
}

int32_t FibonacciFrom(int32_t from, int32_t n, char *out, BignumCost *cost)
{
    return writeResult(out, kExpressionBuffer, [&]() -> std::optional<mpz_class> {
        if (cost == nullptr)
            return std::nullopt;
        *cost = {};
        if (from < 0 || n <= from || n > static_cast<int32_t>(kMaxFibonacci))
            return std::nullopt;
        return timedIteration(static_cast<unsigned>(from), static_cast<unsigned>(n), *cost);
    });
}
