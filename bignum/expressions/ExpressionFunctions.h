// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <gmpxx.h>
#include <span>
#include <string_view>

namespace bignum {

/// A function of the expression language: one row of the table that parser, completion and
/// help share.
struct ExpressionFunction
{
    const char *spanish;
    const char *international;
    std::size_t minArguments;
    std::size_t maxArguments;
    const char *description; ///< Spanish, for the student, in UTF-8
    /// One of the two: a function of whole numbers, or of any.
    mpz_class (*ofWholes)(std::span<const mpz_class> arguments);
    const mpq_class &(*ofRationals)(std::span<mpq_class> arguments);
};

std::span<const ExpressionFunction> expressionFunctions();

/// The function of that name, letter case ignored; null when there is none.
const ExpressionFunction *findFunction(std::string_view name);

} // namespace bignum
