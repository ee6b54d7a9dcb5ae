// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/arithmetic/MontgomeryModulus.h"

#include <algorithm>

namespace bignum {

MontgomeryModulus::MontgomeryModulus(const mpz_class &n)
    : m_n(n),
      m_size(static_cast<mp_size_t>(mpz_size(n.get_mpz_t()))),
      m_product(2 * mpz_size(n.get_mpz_t()))
{
    const mp_limb_t low = mpz_getlimbn(n.get_mpz_t(), 0);
    mp_limb_t inverse = low; // correct modulo 8; each step doubles the bits
    for (int bits = 3; bits < GMP_NUMB_BITS; bits *= 2)
        inverse *= 2 - low * inverse;
    m_negativeInverse = 0 - inverse;
}

MontgomeryModulus::Residue MontgomeryModulus::fromInteger(const mpz_class &value) const
{
    mpz_class shifted = value << static_cast<mp_bitcnt_t>(m_size) * GMP_NUMB_BITS;
    shifted %= m_n;
    Residue residue(static_cast<std::size_t>(m_size), 0);
    std::copy_n(mpz_limbs_read(shifted.get_mpz_t()), mpz_size(shifted.get_mpz_t()),
                residue.begin());
    return residue;
}

mpz_class MontgomeryModulus::toInteger(const Residue &residue)
{
    Residue reduced(residue.size());
    std::copy(residue.begin(), residue.end(), m_product.begin());
    std::fill(m_product.begin() + m_size, m_product.end(), mp_limb_t{0});
    reduceInto(reduced);
    mpz_t view;
    return mpz_class(mpz_roinit_n(view, reduced.data(), m_size));
}

void MontgomeryModulus::multiply(Residue &result, const Residue &a, const Residue &b)
{
    mpn_mul_n(m_product.data(), a.data(), b.data(), m_size);
    reduceInto(result);
}

void MontgomeryModulus::square(Residue &result, const Residue &a)
{
    mpn_sqr(m_product.data(), a.data(), m_size);
    reduceInto(result);
}

void MontgomeryModulus::add(Residue &result, const Residue &a, const Residue &b) const
{
    const mp_limb_t *modulus = mpz_limbs_read(m_n.get_mpz_t());
    const mp_limb_t carry = mpn_add_n(result.data(), a.data(), b.data(), m_size);
    if (carry != 0 || mpn_cmp(result.data(), modulus, m_size) >= 0)
        mpn_sub_n(result.data(), result.data(), modulus, m_size);
}

void MontgomeryModulus::subtract(Residue &result, const Residue &a, const Residue &b) const
{
    if (mpn_sub_n(result.data(), a.data(), b.data(), m_size) != 0)
        mpn_add_n(result.data(), result.data(), mpz_limbs_read(m_n.get_mpz_t()), m_size);
}

void MontgomeryModulus::reduceInto(Residue &result)
{
    const mp_limb_t *modulus = mpz_limbs_read(m_n.get_mpz_t());
    mp_limb_t *low = m_product.data();
    mp_limb_t *high = low + m_size;
    // Each step makes the lowest limb zero; its place keeps the carry, which belongs m_size limbs
    // up.
    for (mp_size_t i = 0; i < m_size; ++i)
        low[i] = mpn_addmul_1(low + i, modulus, m_size, low[i] * m_negativeInverse);
    const mp_limb_t carry = mpn_add_n(result.data(), high, low, m_size);
    if (carry != 0 || mpn_cmp(result.data(), modulus, m_size) >= 0)
        mpn_sub_n(result.data(), result.data(), modulus, m_size);
}

} // namespace bignum
