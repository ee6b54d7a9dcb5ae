// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <gmpxx.h>

namespace bignum::sieve {

// GMP's own conversions pass through `unsigned long`, which has 32 bits on some systems.

/// The low 64 bits of |n|.
inline std::uint64_t toUint64(const mpz_class &n)
{
    std::uint64_t low = 0;
    const mpz_class rest = n % (mpz_class(1) << 64);
    mpz_export(&low, nullptr, -1, sizeof low, 0, 0, rest.get_mpz_t());
    return low;
}

inline mpz_class fromUint64(std::uint64_t value)
{
    mpz_class n;
    mpz_import(n.get_mpz_t(), 1, -1, sizeof value, 0, 0, &value);
    return n;
}

/// n mod p, never negative.
inline std::uint32_t modulo(const mpz_class &n, std::uint32_t p)
{
    return static_cast<std::uint32_t>(mpz_fdiv_ui(n.get_mpz_t(), p));
}

} // namespace bignum::sieve
