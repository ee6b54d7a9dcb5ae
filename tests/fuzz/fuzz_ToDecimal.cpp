// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/fuzz/FuzzTarget.h"

#include <algorithm>

namespace {

void checkForm(const std::string &decimal)
{
    const std::string magnitude = magnitudeOf(decimal);
    const auto point = magnitude.find('.');
    check(isCanonicalNatural(magnitude.substr(0, point)), "an integer part without needless zeros");
    if (point == std::string::npos)
        return;
    const std::string decimals = magnitude.substr(point + 1);
    check(!decimals.empty() && decimals.back() != '0' &&
              decimals.find_first_not_of("0123456789") == std::string::npos,
          "decimals without trailing zeros");
}

} // namespace

/// The first line is the precision, the rest the rational.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string input(reinterpret_cast<const char *>(data), size);
    const auto line = std::min(input.find('\n'), input.size());
    InitBignum(std::atoi(input.substr(0, line).c_str()));
    const std::string rational = input.substr(std::min(line + 1, input.size()));

    const auto decimal = decimalOf(rational);
    if (!decimal)
        return 0;
    checkForm(*decimal);
    const auto read = rationalValueOf(*decimal);
    check(read.has_value(), "a decimal fraction is an expression");
    check(decimalOf(*read) == decimal, "a rounded value is not rounded again");
    check(decimal->starts_with('-') == (BMax(rational.c_str(), "0") == 2), "the sign is kept");
    return 0;
}
