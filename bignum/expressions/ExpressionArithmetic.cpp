// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/expressions/ExpressionArithmetic.h"

#include "bignum/arithmetic/ModularArithmetic.h"
#include "bignum/text/NumberText.h"

#include <cstdint>
#include <string>

namespace bignum::arithmetic {

namespace {

/// Bits of the largest value that fits a text: kMaxInputDigits · log2(10), rounded up.
constexpr std::size_t kMaxBits = kMaxInputDigits * 33220 / 10000 + 1;

/// The largest n whose factorial is worth computing: 10000! has 35660 digits, beyond every buffer.
constexpr unsigned long kMaxFactorial = 10'000;

void readWhole(mpz_class &value, std::string_view digits)
{
    require(digits.size() <= kMaxInputDigits, Fault::TooLarge);
    readDigits(value, digits);
}

/// base^exponent for |base| >= 2, refused before it is computed where it cannot fit.
mpz_class largePower(const mpz_class &base, const mpz_class &exponent)
{
    require(exponent.fits_ulong_p(), Fault::TooLarge);
    const unsigned long e = exponent.get_ui();
    require(e <= kMaxBits && std::uint64_t{bits(base) - 1} * e <= kMaxBits, Fault::TooLarge);
    mpz_class result;
    mpz_pow_ui(result.get_mpz_t(), base.get_mpz_t(), e);
    checkSize(result);
    return result;
}

} // namespace

std::size_t bits(const mpz_class &value)
{
    return mpz_sizeinbase(value.get_mpz_t(), 2);
}

std::size_t bits(const mpq_class &value)
{
    return bits(value.get_num()) + bits(value.get_den());
}

void checkSize(const mpz_class &value)
{
    require(wordBits(value) <= kMaxBits || bits(value) <= kMaxBits, Fault::TooLarge);
}

void checkSize(const mpq_class &value)
{
    // The one bit more is that of a whole number's denominator: whole numbers have the same bound
    // in both evaluators.
    require(wordBits(value) <= kMaxBits || bits(value) <= kMaxBits + 1, Fault::TooLarge);
}

void read(mpq_class &value, std::string_view digits, std::size_t point)
{
    if (point == std::string_view::npos) {
        readWhole(value.get_num(), digits);
        return;
    }
    const std::string_view decimals = digits.substr(point + 1);
    std::string all(digits.substr(0, point));
    all += decimals;
    readWhole(value.get_num(), all);
    value.get_den() = powerOfTen(decimals.size());
    value.canonicalize();
    checkSize(value);
}

void read(mpz_class &value, std::string_view digits, std::size_t point)
{
    if (point == std::string_view::npos) {
        readWhole(value, digits);
        return;
    }
    mpq_class fraction;
    read(fraction, digits, point);
    value = whole(fraction);
}

const mpz_class &whole(const mpz_class &value)
{
    return value;
}

const mpz_class &whole(const mpq_class &value)
{
    require(isWhole(value), Fault::NotWhole);
    return value.get_num();
}

void multiply(mpz_class &a, const mpz_class &b)
{
    require(wordBits(a) + wordBits(b) <= kMaxBits || bits(a) + bits(b) <= kMaxBits + 1,
            Fault::TooLarge);
    a *= b;
    checkSize(a);
}

void multiply(mpq_class &a, const mpq_class &b)
{
    // Common factors cancel, so the product of two values of full size may yet fit; both are
    // bounded, and so is the work.
    a *= b;
    checkSize(a);
}

void add(mpz_class &a, const mpz_class &b)
{
    a += b;
    checkSize(a);
}

void add(mpq_class &a, const mpq_class &b)
{
    a += b;
    checkSize(a);
}

void subtract(mpz_class &a, const mpz_class &b)
{
    a -= b;
    checkSize(a);
}

void subtract(mpq_class &a, const mpq_class &b)
{
    a -= b;
    checkSize(a);
}

void divide(mpz_class &a, const mpz_class &b)
{
    mpz_class r = a;
    reduce(r, b);
    a -= r;
    mpz_divexact(a.get_mpz_t(), a.get_mpz_t(), b.get_mpz_t());
}

void divide(mpq_class &a, const mpq_class &b)
{
    require(b != 0, Fault::ZeroDivision);
    a /= b;
    checkSize(a);
}

void reduce(mpz_class &a, const mpz_class &m)
{
    require(m != 0, Fault::ZeroDivision);
    mpz_mod(a.get_mpz_t(), a.get_mpz_t(), m.get_mpz_t());
}

void reduce(mpq_class &a, const mpq_class &m)
{
    require(isWhole(a), Fault::NotWhole);
    reduce(a.get_num(), whole(m));
}

mpz_class power(const mpz_class &base, const mpz_class &exponent)
{
    if (exponent == 0 || base == 1)
        return 1;
    if (base == -1)
        return mpz_even_p(exponent.get_mpz_t()) ? 1 : -1;
    require(exponent > 0, base == 0 ? Fault::ZeroDivision : Fault::NotWhole);
    return base == 0 ? mpz_class(0) : largePower(base, exponent);
}

mpq_class power(const mpq_class &base, const mpq_class &exponent)
{
    const mpz_class &e = whole(exponent);
    if (e < 0) {
        require(base != 0, Fault::ZeroDivision);
        return power(mpq_class(1 / base), mpq_class(-e));
    }
    // A fraction in lowest terms stays so when both parts are raised.
    mpq_class result;
    result.get_num() = power(base.get_num(), e);
    result.get_den() = power(base.get_den(), e);
    checkSize(result);
    return result;
}

mpz_class factorial(const mpz_class &n)
{
    require(n >= 0, Fault::OutOfDomain);
    require(n <= kMaxFactorial, Fault::TooLarge);
    mpz_class result;
    mpz_fac_ui(result.get_mpz_t(), n.get_ui());
    checkSize(result);
    return result;
}

mpq_class factorial(const mpq_class &n)
{
    return mpq_class(factorial(whole(n)));
}

mpz_class modularPower(const mpz_class &base, const mpz_class &exponent, const mpz_class &m)
{
    // A squaring modulo 10 000 bits takes some 50 µs: with this product of lengths the whole power
    // takes about a second at most.
    constexpr std::uint64_t freeBits = 10'000;
    require(bits(exponent) * std::uint64_t{bits(m)} <= freeBits * freeBits, Fault::TooSlow);
    const auto result = powerMod(base, exponent, m);
    require(result.has_value(), Fault::ZeroDivision);
    return *result;
}

} // namespace bignum::arithmetic
