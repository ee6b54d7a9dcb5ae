// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/fuzz/FuzzTarget.h"

#include <chrono>

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string expression(reinterpret_cast<const char *>(data), size);
    if (isSlow(expression))
        return 0;
    const auto value = integerValueOf(expression);
    if (!value)
        return 0;
    check(isCanonicalNatural(magnitudeOf(*value)) && *value != "-0", "the value is an integer");
    check(integerValueOf(*value) == value, "a value is its own value");

    // A quotient is Euclid's in one evaluator and exact in the other; nothing else differs.
    if (expression.find('/') != std::string::npos)
        return 0;
    const auto start = std::chrono::steady_clock::now();
    const auto rational = rationalValueOf(expression);
    const bool outOfPatience =
        !rational && std::chrono::steady_clock::now() - start > std::chrono::seconds(1);
    const bool excused = outOfPatience || (!rational && mayFactor(expression));
    check(rational == value || excused, "both evaluators agree");
    return 0;
}
