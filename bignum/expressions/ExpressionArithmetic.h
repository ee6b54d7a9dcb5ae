// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/expressions/ExpressionFault.h"

#include <gmpxx.h>
#include <string_view>

namespace bignum {

/// The operations of expressions over both number types. Each throws NoValue where the result is
/// undefined, not of the type, or larger than any value may be; sizes are estimated before what is
/// large is computed, because GMP ends the process when it runs out of memory.
namespace arithmetic {

/// Gives `value` the number that a text of digits stands for, with a decimal part behind the
/// position `point` unless that is npos.
void read(mpz_class &value, std::string_view digits, std::size_t point);
void read(mpq_class &value, std::string_view digits, std::size_t point);

/// The binary operations put their result in place of `a`.
void multiply(mpz_class &a, const mpz_class &b);
void multiply(mpq_class &a, const mpq_class &b);

void add(mpz_class &a, const mpz_class &b);
void add(mpq_class &a, const mpq_class &b);

void subtract(mpz_class &a, const mpz_class &b);
void subtract(mpq_class &a, const mpq_class &b);

/// Euclid's quotient over the integers, the exact one over the rationals.
void divide(mpz_class &a, const mpz_class &b);
void divide(mpq_class &a, const mpq_class &b);

/// To the remainder in [0, |m|); over the rationals both must be whole.
void reduce(mpz_class &a, const mpz_class &m);
void reduce(mpq_class &a, const mpq_class &m);

mpz_class power(const mpz_class &base, const mpz_class &exponent);
mpq_class power(const mpq_class &base, const mpq_class &exponent);

mpz_class factorial(const mpz_class &n);
mpq_class factorial(const mpq_class &n);

/// base^exponent modulo |m| without forming the power.
mpz_class modularPower(const mpz_class &base, const mpz_class &exponent, const mpz_class &m);

/// The whole number that a value is.
const mpz_class &whole(const mpz_class &value);
const mpz_class &whole(const mpq_class &value);

/// Whether a value is whole.
inline bool isWhole(const mpz_class &)
{
    return true;
}
inline bool isWhole(const mpq_class &value)
{
    return value.get_den() == 1;
}

/// Refuses what is larger than any intermediate value may be.
void checkSize(const mpz_class &value);
void checkSize(const mpq_class &value);

/// The bits of a value, of numerator and denominator together.
std::size_t bits(const mpz_class &value);
std::size_t bits(const mpq_class &value);

/// An upper bound of `bits` that costs next to nothing.
inline std::size_t wordBits(const mpz_class &value)
{
    return mpz_size(value.get_mpz_t()) * GMP_NUMB_BITS;
}
inline std::size_t wordBits(const mpq_class &value)
{
    return wordBits(value.get_num()) + wordBits(value.get_den());
}

} // namespace arithmetic

} // namespace bignum
