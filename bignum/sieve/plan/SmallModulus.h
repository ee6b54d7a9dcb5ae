// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <gmpxx.h>
#include <optional>

namespace bignum::sieve {

/// n mod p, never negative.
inline std::uint32_t modulo(const mpz_class &n, std::uint32_t p)
{
    return static_cast<std::uint32_t>(mpz_fdiv_ui(n.get_mpz_t(), p));
}

/// a·b mod p.
constexpr std::uint32_t multiplyModulo(std::uint32_t a, std::uint32_t b, std::uint32_t p)
{
    return static_cast<std::uint32_t>(std::uint64_t{a} * b % p);
}

/// a - b mod p, for a and b below p < 2^31.
constexpr std::uint32_t subtractModulo(std::uint32_t a, std::uint32_t b, std::uint32_t p)
{
    return a >= b ? a - b : a + p - b;
}

std::uint32_t powerModulo(std::uint32_t base, std::uint32_t exponent, std::uint32_t p);

/// The inverse of a modulo m, for coprime a and m > 1.
std::uint32_t inverseModulo(std::uint32_t a, std::uint32_t m);

/// A square root of a < p modulo the odd prime p, if there is one: by a single power for p = 3
/// mod 4, otherwise by D. Shanks, "Five number-theoretic algorithms", 1972.
std::optional<std::uint32_t> squareRootModulo(std::uint32_t a, std::uint32_t p);

} // namespace bignum::sieve
