// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/expressions/ExpressionFault.h"

#include <optional>
#include <string>
#include <string_view>

namespace bignum {

/// The value of an expression over the integers; nothing when it is malformed, undefined, not
/// whole, or too large.
///
/// Operators, from loose to tight: + and -; * / % and the implicit product; prefix signs; ^ (right
/// to left); ! (postfix). Brackets () [] {} match by kind. The product sign may be left out behind
/// a closing bracket, "(5)2", and between a number and an opening bracket, "2(3)". / and % are
/// Euclid's quotient and remainder: n = m (n/m) + n%m with 0 <= n%m < |m|. 0^0 is 1. "a^b % m" is a
/// modular power: a^b itself is never formed. Numbers are decimal, with decimals behind "." or ",".
/// Functions stand in the table of ExpressionFunctions.cpp; their arguments are separated by ";".
///
/// Every intermediate value has at most kMaxInputDigits digits, brackets and signs nest at most
/// 1000 deep, and one evaluation takes about two seconds at most; what needs more is refused.
std::optional<std::string> evaluateInteger(std::string_view text);

/// The same over the rationals: / is exact, % needs whole operands, and so does every function but
/// abs, min and max. The value is written as "p" or "p/q" in lowest terms.
std::optional<std::string> evaluateRational(std::string_view text);

/// Why evaluateRational gives nothing, and where: the first fault on the way through the text.
/// Fault::None for an expression that has a value. Takes a tenth of a second at most, or one long
/// operation; what needs more is Fault::TooSlow.
NoValue rationalFault(std::string_view text);

} // namespace bignum
