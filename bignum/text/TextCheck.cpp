// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/text/TextCheck.h"

#include <algorithm>

namespace bignum {

namespace {

bool isPlainCharacter(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    if (byte < 0x20)
        return byte == '\t' || byte == '\n' || byte == '\r';
    constexpr std::string_view none = "\x7F\x81\x8D\x8F\x90\x9D";
    return none.find(character) == std::string_view::npos;
}

} // namespace

bool isPlainText(std::string_view text)
{
    return std::ranges::all_of(text, isPlainCharacter);
}

} // namespace bignum
