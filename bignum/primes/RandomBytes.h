// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace bignum {

/// Fills the bytes from the random source of the operating system. Throws std::system_error if that
/// gives none.
void fillRandom(std::span<unsigned char> bytes);

} // namespace bignum
