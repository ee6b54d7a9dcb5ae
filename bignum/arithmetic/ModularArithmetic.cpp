// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/arithmetic/ModularArithmetic.h"

#include "bignum/text/NumberText.h"

namespace bignum {

namespace {

/// Beyond this many bits of the modulus (8191 digits) long exponents are refused.
constexpr std::size_t kLongModulusBits = 27210;
constexpr std::size_t kLongExponentBits = 4096;

std::size_t bitCount(const mpz_class &value)
{
    return mpz_sizeinbase(value.get_mpz_t(), 2);
}

/// Joins `next` to `merged`, whose remainder is reduced. False if they contradict each other.
bool merge(Congruence &merged, const Congruence &next)
{
    const mpz_class modulus = abs(next.modulus);
    const ExtendedGcd bezout = extendedGcd(merged.modulus, modulus);
    const mpz_class difference = next.remainder - merged.remainder;
    if (!mpz_divisible_p(difference.get_mpz_t(), bezout.gcd.get_mpz_t()))
        return false;

    // x = r + M k, and M k = difference (mod m) leaves k = difference/g * (M/g)^-1 (mod m/g).
    const mpz_class reduced = modulus / bezout.gcd;
    mpz_class step = difference / bezout.gcd * bezout.x;
    mpz_fdiv_r(step.get_mpz_t(), step.get_mpz_t(), reduced.get_mpz_t());
    merged.remainder += merged.modulus * step;
    merged.modulus *= reduced;
    return true;
}

} // namespace

ExtendedGcd extendedGcd(const mpz_class &a, const mpz_class &b)
{
    ExtendedGcd result;
    mpz_gcdext(result.gcd.get_mpz_t(), result.x.get_mpz_t(), result.y.get_mpz_t(), a.get_mpz_t(),
               b.get_mpz_t());
    return result;
}

std::optional<mpz_class> modulo(const mpz_class &a, const mpz_class &m)
{
    if (m == 0)
        return std::nullopt;
    mpz_class result;
    mpz_mod(result.get_mpz_t(), a.get_mpz_t(), m.get_mpz_t());
    return result;
}

std::optional<mpz_class> inverse(const mpz_class &a, const mpz_class &n)
{
    const mpz_class modulus = abs(n);
    if (modulus == 1)
        return mpz_class(0);
    mpz_class result;
    if (modulus == 0 || !mpz_invert(result.get_mpz_t(), a.get_mpz_t(), modulus.get_mpz_t()))
        return std::nullopt;
    return result;
}

std::optional<mpz_class> powerMod(const mpz_class &base, const mpz_class &exponent,
                                  const mpz_class &modulus)
{
    if (modulus == 0)
        return std::nullopt;
    if (bitCount(modulus) > kLongModulusBits && bitCount(exponent) > kLongExponentBits)
        return std::nullopt;

    std::optional<mpz_class> positive = base;
    if (exponent < 0)
        positive = inverse(base, modulus);
    if (!positive)
        return std::nullopt;
    const mpz_class magnitude = abs(exponent);
    mpz_class result;
    mpz_powm(result.get_mpz_t(), positive->get_mpz_t(), magnitude.get_mpz_t(), modulus.get_mpz_t());
    return modulo(result, modulus);
}

std::optional<mpz_class> chineseRemainder(const std::vector<Congruence> &congruences)
{
    if (congruences.empty())
        return std::nullopt;
    Congruence merged{0, 1};
    for (const Congruence &next : congruences) {
        if (next.modulus == 0 || !merge(merged, next))
            return std::nullopt;
        if (decimalDigits(merged.modulus) > kMaxInputDigits)
            return std::nullopt;
    }
    return merged.remainder;
}

} // namespace bignum
