// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <gmpxx.h>
#include <optional>
#include <string>
#include <string_view>

namespace bignum {

/// Sizes, final NUL included, of the buffers that a caller hands over: for the value of an
/// expression, for a decimal expansion, and for any other result.
constexpr std::size_t kExpressionBuffer = 24576;
constexpr std::size_t kDecimalBuffer = 16384;
constexpr std::size_t kNumberBuffer = 8192;

/// The most digits that a number read from a text may have: what the largest buffer can hold.
constexpr std::size_t kMaxInputDigits = kExpressionBuffer - 1;

/// `text` without the blanks (space, tab, CR, LF) at its ends.
std::string_view trimmed(std::string_view text);

/// Gives `value` the number that `digits`, at least one decimal digit and nothing else, stands for.
void readDigits(mpz_class &value, std::string_view digits);

/// The integer written in `text`: blanks around it, one sign and at most kMaxInputDigits decimal
/// digits. Nothing if the text is anything else, the empty text included.
std::optional<mpz_class> parseInteger(std::string_view text);

/// The rational written in `text` as "p" or "p/q" with q > 0, in lowest terms.
std::optional<mpq_class> parseRational(std::string_view text);

/// How many decimal digits |value| has, 1 for 0. Exact, as mpz_sizeinbase, which may say one too
/// many, is not.
std::size_t decimalDigits(const mpz_class &value);

/// 10^exponent.
mpz_class powerOfTen(std::size_t exponent);

/// Decimal digits, with "-" before a negative value.
std::string toText(const mpz_class &value);

/// "p/q" in lowest terms, "p" for a whole value.
std::string toText(const mpq_class &value);

/// Copies `text` and a NUL into `buffer`. False if the buffer is null or too small; what there is
/// of a buffer then holds the empty text.
bool writeText(std::string_view text, char *buffer, std::size_t capacity);

} // namespace bignum
