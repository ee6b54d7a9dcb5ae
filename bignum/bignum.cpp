// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/bignum.h"

#include "bignum/arithmetic/FibonacciMethods.h"
#include "bignum/arithmetic/ModularArithmetic.h"
#include "bignum/expressions/Expression.h"
#include "bignum/expressions/ExpressionFunctions.h"
#include "bignum/factoring/Factorization.h"
#include "bignum/primes/Primality.h"
#include "bignum/primes/PrimeList.h"
#include "bignum/primes/RandomPrime.h"
#include "bignum/text/Decimal.h"
#include "bignum/text/NumberText.h"
#include "bignum/text/TextCheck.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <initializer_list>
#include <limits>

using namespace bignum;

namespace {

constexpr int kDefaultPrecision = 100;
constexpr int kMaxPrecision = 1000;
constexpr unsigned kMaxPrimeSearchBits = 10000;

std::atomic<int> precision = kDefaultPrecision;

std::string_view textOf(const char *text)
{
    return text == nullptr ? std::string_view() : std::string_view(text);
}

std::optional<mpz_class> integerOf(const char *text)
{
    return parseInteger(textOf(text));
}

void clear(std::initializer_list<char *> buffers)
{
    for (char *buffer : buffers)
        writeText({}, buffer, 1);
}

/// What `operation` returns, or `failure` where it throws: no exception may cross the interface.
template <typename Result = int32_t, typename Operation>
Result guarded(Result failure, Operation operation) noexcept
{
    try {
        return static_cast<Result>(operation());
    } catch (...) {
        return failure;
    }
}

/// Writes the optional text or number that `operation` gives; nothing is a failure.
template <typename Operation>
int32_t writeResult(char *out, std::size_t capacity, Operation operation) noexcept
{
    clear({out});
    return guarded(0, [&] {
        const auto result = operation();
        if (!result)
            return false;
        if constexpr (requires { toText(*result); })
            return writeText(toText(*result), out, capacity);
        else
            return writeText(*result, out, capacity);
    });
}

/// The same for an operation on two integers.
template <typename Operation>
int32_t writeResultOf(const char *a, const char *b, char *out, Operation operation) noexcept
{
    return writeResult(out, kNumberBuffer, [&]() -> std::optional<mpz_class> {
        const auto x = integerOf(a);
        const auto y = integerOf(b);
        if (!x || !y)
            return std::nullopt;
        return operation(*x, *y);
    });
}

bool isInPrimeSearchRange(const mpz_class &n)
{
    return mpz_sizeinbase(n.get_mpz_t(), 2) <= kMaxPrimeSearchBits;
}

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

int32_t InitBignum(int32_t digits)
{
    precision = std::clamp<int>(digits, 1, kMaxPrecision);
    return 1;
}

int32_t EndBignum(void)
{
    precision = kDefaultPrecision;
    StopSignal::requestAll();
    return 1;
}

int32_t IsPrime(const char *n)
{
    return guarded(0, [&] {
        const auto number = integerOf(n);
        return number && isPrime(*number);
    });
}

int32_t NumBits(const char *n)
{
    return guarded(0, [&]() -> std::size_t {
        const auto number = integerOf(n);
        if (!number || *number == 0)
            return 0;
        return mpz_sizeinbase(number->get_mpz_t(), 2);
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

int32_t ToBasis(int32_t base, const char *n, char *out)
{
    return writeResult(out, kNumberBuffer, [&]() -> std::optional<std::string> {
        const auto number = integerOf(n);
        if (!number || base < 2 || base > 36)
            return std::nullopt;
        return number->get_str(base);
    });
}

int32_t ToDecimal(const char *q, char *out)
{
    return writeResult(out, kDecimalBuffer, [&]() -> std::optional<std::string> {
        const auto value = parseRational(textOf(q));
        if (!value)
            return std::nullopt;
        return toDecimal(*value, precision);
    });
}

int32_t ZEval(const char *expression, char *out)
{
    return writeResult(out, kExpressionBuffer, [&] { return evaluateInteger(textOf(expression)); });
}

int32_t QEval(const char *expression, char *out)
{
    return writeResult(out, kExpressionBuffer,
                       [&] { return evaluateRational(textOf(expression)); });
}

int32_t QEvalFault(const char *expression, int32_t *start, int32_t *length)
{
    if (expression == nullptr || start == nullptr || length == nullptr)
        return -1;
    *start = *length = 0;
    return guarded(-1, [&] {
        const NoValue reason = rationalFault(expression);
        if (reason.where.data() != nullptr) {
            *start = static_cast<int32_t>(reason.where.data() - expression);
            *length = static_cast<int32_t>(reason.where.size());
        }
        return reason.fault;
    });
}

int32_t EvalFunction(int32_t index, BignumFunction *out)
{
    const auto functions = expressionFunctions();
    if (out == nullptr || index < 0 || static_cast<std::size_t>(index) >= functions.size())
        return 0;
    const ExpressionFunction &function = functions[static_cast<std::size_t>(index)];
    constexpr std::size_t most = std::numeric_limits<int32_t>::max();
    *out = {function.spanish, function.international, function.description,
            static_cast<int32_t>(function.minArguments),
            static_cast<int32_t>(std::min(function.maxArguments, most))};
    return 1;
}

int32_t BMax(const char *a, const char *b)
{
    const auto valueOf = [](std::string_view text) {
        return text.empty() ? std::optional<mpq_class>(0) : parseRational(text);
    };
    return guarded(-1, [&] {
        const auto first = valueOf(trimmed(textOf(a)));
        const auto second = valueOf(trimmed(textOf(b)));
        if (!first || !second)
            return -1;
        if (*first == *second)
            return 0;
        return *second > *first ? 2 : 1;
    });
}

int32_t IsText(const char *s)
{
    return guarded(0, [&] { return isPlainText(textOf(s)) ? -1 : 0; });
}
