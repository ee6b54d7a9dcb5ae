// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/interface/Entry.h"

#include "bignum/expressions/Expression.h"
#include "bignum/expressions/ExpressionFunctions.h"

#include <algorithm>
#include <limits>

using namespace bignum;

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
