// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <gmpxx.h>

namespace bignum {

// GMP's own conversions pass through `unsigned long`, which has 32 bits on some systems, and a limb
// has 32 bits on some and 64 on others: what may be longer than 32 bits passes through these.

/// The digit at `place` of |n| in base 2^64, counted from the lowest.
inline std::uint64_t wordAt(const mpz_class &n, mp_size_t place)
{
    if constexpr (GMP_NUMB_BITS == 64)
        return mpz_getlimbn(n.get_mpz_t(), place);
    const std::uint64_t high = mpz_getlimbn(n.get_mpz_t(), 2 * place + 1);
    return high << 32 | mpz_getlimbn(n.get_mpz_t(), 2 * place);
}

/// The low 64 bits of |n|.
inline std::uint64_t toUint64(const mpz_class &n)
{
    return wordAt(n, 0);
}

inline mpz_class fromUint64(std::uint64_t value)
{
    if constexpr (sizeof(unsigned long) == sizeof value)
        return mpz_class(static_cast<unsigned long>(value));
    mpz_class n;
    mpz_import(n.get_mpz_t(), 1, -1, sizeof value, 0, 0, &value);
    return n;
}

/// n mod d for n >= 0 and d > 0 of a whole limb.
inline mp_limb_t limbModulo(const mpz_class &n, mp_limb_t d)
{
    return mpn_mod_1(mpz_limbs_read(n.get_mpz_t()), static_cast<mp_size_t>(mpz_size(n.get_mpz_t())),
                     d);
}

} // namespace bignum
