// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmpxx.h>
#include <optional>
#include <string>

namespace bignum {

/// `value` as a decimal fraction with "." as its point: the integer part whole, and decimals up to
/// `precision` significant digits in all (at least 1), rounded half to even, without trailing
/// zeros; an expansion that ends within them is exact. Nothing where the text would not fit
/// kDecimalBuffer.
std::optional<std::string> toDecimal(const mpq_class &value, int precision);

} // namespace bignum
