// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/primes/RandomBytes.h"

#include <system_error>
#include <windows.h>

#include <bcrypt.h>

namespace bignum {

void fillRandom(std::span<unsigned char> bytes)
{
    const NTSTATUS status = ::BCryptGenRandom(
        nullptr, bytes.data(), static_cast<ULONG>(bytes.size()), BCRYPT_USE_SYSTEM_PREFERRED_RNG);
    if (status < 0)
        throw std::system_error(static_cast<int>(status), std::system_category(),
                                "BCryptGenRandom");
}

} // namespace bignum
