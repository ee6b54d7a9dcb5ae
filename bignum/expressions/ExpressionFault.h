// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/bignum.h"

#include <cstdint>
#include <string_view>

namespace bignum {

/// Why an expression has no value; the numbers are those of the C interface.
enum class Fault : std::int32_t {
    None = BIGNUM_NO_FAULT,
    MissingOperand = BIGNUM_MISSING_OPERAND,
    MissingOperator = BIGNUM_MISSING_OPERATOR,
    Misplaced = BIGNUM_MISPLACED,
    Unknown = BIGNUM_UNKNOWN,
    BadArguments = BIGNUM_BAD_ARGUMENTS,
    ZeroDivision = BIGNUM_ZERO_DIVISION,
    NotWhole = BIGNUM_NOT_WHOLE,
    OutOfDomain = BIGNUM_OUT_OF_DOMAIN,
    TooLarge = BIGNUM_TOO_LARGE,
    TooSlow = BIGNUM_TOO_SLOW
};

/// Thrown inside the evaluator when an expression has no value; never leaves it.
struct NoValue
{
    Fault fault;
    std::string_view where = {}; ///< the part of the expression at fault, where there is one
};

inline void require(bool condition, Fault fault)
{
    if (!condition)
        throw NoValue{fault};
}

} // namespace bignum
