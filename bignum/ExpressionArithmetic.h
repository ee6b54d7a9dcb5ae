#pragma once

#include <gmpxx.h>
#include <string_view>

namespace bignum {

/// Thrown inside the evaluator when an expression has no value; never leaves it.
struct NoValue
{
};

/// The operations of expressions over both number types. Each throws NoValue where the result is
/// undefined, not of the type, or larger than any value may be; sizes are estimated before what is
/// large is computed, because GMP ends the process when it runs out of memory.
namespace arithmetic {

/// The number that a text of digits stands for, with a decimal part behind the position `point`
/// unless that is npos.
template <typename Number>
Number literal(std::string_view digits, std::size_t point);

mpz_class product(mpz_class a, const mpz_class &b);
mpq_class product(mpq_class a, const mpq_class &b);

mpz_class sum(mpz_class a, const mpz_class &b);
mpq_class sum(mpq_class a, const mpq_class &b);

mpz_class difference(mpz_class a, const mpz_class &b);
mpq_class difference(mpq_class a, const mpq_class &b);

/// Euclid's quotient over the integers, the exact one over the rationals.
mpz_class quotient(const mpz_class &a, const mpz_class &b);
mpq_class quotient(const mpq_class &a, const mpq_class &b);

/// In [0, |m|); over the rationals both must be whole.
mpz_class remainder(const mpz_class &a, const mpz_class &m);
mpq_class remainder(const mpq_class &a, const mpq_class &m);

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

} // namespace arithmetic

} // namespace bignum
