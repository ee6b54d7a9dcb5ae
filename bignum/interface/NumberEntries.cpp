// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/interface/Entry.h"

#include "bignum/factoring/Factorization.h"
#include "bignum/text/Decimal.h"
#include "bignum/text/TextCheck.h"

#include <algorithm>
#include <atomic>

using namespace bignum;

namespace {

constexpr int kDefaultPrecision = 100;
constexpr int kMaxPrecision = 1000;

std::atomic<int> precision = kDefaultPrecision;

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

int32_t NumBits(const char *n)
{
    return guarded(0, [&]() -> std::size_t {
        const auto number = integerOf(n);
        if (!number || *number == 0)
            return 0;
        return mpz_sizeinbase(number->get_mpz_t(), 2);
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
