// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/fuzz/FuzzTarget.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string expression(reinterpret_cast<const char *>(data), size);
    if (isSlow(expression))
        return 0;
    const auto value = rationalValueOf(expression);
    if (!value)
        return 0;
    const std::string magnitude = magnitudeOf(*value);
    const auto slash = magnitude.find('/');
    const std::string numerator = magnitude.substr(0, slash);
    check(isCanonicalNatural(numerator) && *value != "-0", "the numerator is an integer");
    if (slash != std::string::npos) {
        const std::string denominator = magnitude.substr(slash + 1);
        check(isCanonicalNatural(denominator) && BMax("1", denominator.c_str()) == 2,
              "the denominator is above 1");
        check(integerValueOf("mcd(" + numerator + ";" + denominator + ")") == "1", "lowest terms");
    }
    check(rationalValueOf(*value) == value, "a value is its own value");
    decimalOf(*value);
    return 0;
}
