// SPDX-License-Identifier: GPL-3.0-or-later
#include "Samples.h"

namespace {

mpz_class primeFrom(mpz_class n)
{
    mpz_nextprime(n.get_mpz_t(), n.get_mpz_t());
    return n;
}

mpz_class powerOf10(unsigned exponent)
{
    mpz_class result;
    mpz_ui_pow_ui(result.get_mpz_t(), 10, exponent);
    return result;
}

} // namespace

Samples::Samples() : m_random(gmp_randinit_default)
{
    constexpr unsigned long seed = 20240229;
    m_random.seed(seed);
}

mpz_class Samples::numberOfBits(unsigned bits)
{
    mpz_class result = m_random.get_z_bits(bits - 1);
    mpz_setbit(result.get_mpz_t(), bits - 1);
    return result;
}

mpz_class Samples::numberOfDigits(unsigned digits)
{
    const mpz_class low = powerOf10(digits - 1);
    return low + m_random.get_z_range(9 * low);
}

std::vector<mpz_class> Samples::primes(unsigned bits, int count)
{
    std::vector<mpz_class> result;
    for (int i = 0; i < count; ++i)
        result.push_back(primeFrom(numberOfBits(bits)));
    return result;
}

std::vector<mpz_class> Samples::composites(unsigned bits, int count)
{
    std::vector<mpz_class> result;
    for (int i = 0; i < count; ++i)
        result.emplace_back(primeFrom(numberOfBits(bits / 2)) * primeFrom(numberOfBits(bits / 2)));
    return result;
}

std::vector<mpz_class> Samples::numbers(unsigned digits, int count)
{
    std::vector<mpz_class> result;
    for (int i = 0; i < count; ++i)
        result.push_back(numberOfDigits(digits));
    return result;
}

std::vector<mpz_class> Samples::products(unsigned digits, unsigned factorDigits, int count)
{
    std::vector<mpz_class> result;
    while (static_cast<int>(result.size()) < count) {
        const mpz_class factor = primeFrom(numberOfDigits(factorDigits));
        const mpz_class least = powerOf10(digits - 1) / factor;
        const mpz_class product = factor * primeFrom(least + m_random.get_z_range(9 * least));
        if (product < powerOf10(digits))
            result.push_back(product);
    }
    return result;
}
