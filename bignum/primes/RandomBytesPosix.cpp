// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/primes/RandomBytes.h"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <unistd.h>

namespace bignum {

void fillRandom(std::span<unsigned char> bytes)
{
    constexpr std::size_t atOnce = 256; // what the system gives in one call
    while (!bytes.empty()) {
        const auto part = bytes.first(std::min(bytes.size(), atOnce));
        if (::getentropy(part.data(), part.size()) != 0)
            throw std::system_error(errno, std::generic_category(), "getentropy");
        bytes = bytes.subspan(part.size());
    }
}

} // namespace bignum
