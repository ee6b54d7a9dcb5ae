// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/text/Decimal.h"

#include "bignum/text/NumberText.h"

#include <algorithm>

namespace bignum {

namespace {

/// The zeros between the point and the first digit of n / d, for 0 < n < d.
std::size_t leadingZeros(const mpz_class &n, const mpz_class &d)
{
    // Digit counts put the quotient between 10^(a-b-1) and 10^(a-b+1): start below and count up.
    const std::size_t digitsOfN = decimalDigits(n);
    const std::size_t digitsOfD = decimalDigits(d);
    std::size_t zeros = digitsOfD > digitsOfN + 1 ? digitsOfD - digitsOfN - 1 : 0;
    mpz_class scaled = n * powerOfTen(zeros + 1);
    while (scaled < d) {
        scaled *= 10;
        ++zeros;
    }
    return zeros;
}

/// n / d to the nearest integer, halves to even, for n >= 0 and d > 0.
mpz_class roundedQuotient(const mpz_class &n, const mpz_class &d)
{
    mpz_class quotient, rest;
    mpz_fdiv_qr(quotient.get_mpz_t(), rest.get_mpz_t(), n.get_mpz_t(), d.get_mpz_t());
    const int half = cmp(2 * rest, d);
    if (half > 0 || (half == 0 && mpz_odd_p(quotient.get_mpz_t())))
        ++quotient;
    return quotient;
}

std::string withPoint(std::string digits, std::size_t decimals)
{
    if (decimals == 0)
        return digits;
    if (digits.size() <= decimals)
        digits.insert(0, decimals + 1 - digits.size(), '0');
    digits.insert(digits.size() - decimals, 1, '.');
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.ends_with('.'))
        digits.pop_back();
    return digits;
}

} // namespace

std::optional<std::string> toDecimal(const mpq_class &value, int precision)
{
    const mpz_class n = abs(value.get_num());
    const mpz_class &d = value.get_den();
    const std::string sign = value < 0 ? "-" : "";
    const mpz_class integerPart = n / d;
    const auto significant = static_cast<std::size_t>(std::max(precision, 1));

    std::size_t decimals = 0;
    if (d != 1 && integerPart == 0) {
        const std::size_t zeros = leadingZeros(n, d);
        if (zeros >= kDecimalBuffer)
            return std::nullopt;
        decimals = zeros + significant;
    } else if (d != 1) {
        const std::size_t integerDigits = toText(integerPart).size();
        decimals = significant > integerDigits ? significant - integerDigits : 0;
    }
    std::string text =
        sign + withPoint(toText(roundedQuotient(n * powerOfTen(decimals), d)), decimals);
    if (text.size() >= kDecimalBuffer)
        return std::nullopt;
    return text;
}

} // namespace bignum
