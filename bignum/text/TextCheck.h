// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace bignum {

/// Whether every byte is a character of Windows-1252 and none is a control character other than
/// tab, line feed and carriage return.
bool isPlainText(std::string_view text);

} // namespace bignum
