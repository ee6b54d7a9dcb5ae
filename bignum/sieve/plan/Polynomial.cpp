// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/plan/Polynomial.h"

#include "bignum/sieve/plan/SmallModulus.h"

#include <bit>

namespace bignum::sieve {

Polynomial::Polynomial(const Plan &plan, std::vector<std::uint32_t> factors)
    : m_kn(plan.kn), m_factors(std::move(factors))
{
    for (const std::uint32_t factor : m_factors)
        m_a *= plan.base.primes[factor];
    for (const std::uint32_t factor : m_factors) {
        const std::uint32_t q = plan.base.primes[factor];
        const mpz_class others = m_a / q;
        // B^2 = kn modulo q and B = 0 modulo the other factors, so that b^2 = kn modulo `a`.
        const std::uint32_t gamma =
            multiplyModulo(plan.base.roots[factor], inverseModulo(modulo(others, q), q), q);
        m_gammas.push_back(gamma);
        m_parts.push_back(gamma * others);
        m_b += m_parts.back();
    }
    m_lifted = mpz_even_p(m_b.get_mpz_t()) != 0;
    if (m_lifted)
        m_b += m_a;
    findC();
}

void Polynomial::findC()
{
    m_c = m_b * m_b - m_kn;
    const mpz_class divisor = 4 * m_a;
    mpz_divexact(m_c.get_mpz_t(), m_c.get_mpz_t(), divisor.get_mpz_t());
}

Step Polynomial::advance()
{
    ++m_number;
    const auto row = static_cast<std::size_t>(std::countr_zero(m_number));
    // Bits above the one that changes tell by their parity which way: all signs begin as plus.
    const bool toMinus = (m_number >> (row + 1)) % 2 == 0;
    if (toMinus)
        m_b -= 2 * m_parts[row];
    else
        m_b += 2 * m_parts[row];
    findC();
    // A smaller b moves the roots, (+-sqrt(kn) - b) / 2a, up.
    return {row, !toMinus};
}

void Polynomial::rootAt(mpz_class &root, std::int64_t x) const
{
    root = 2 * static_cast<long>(x) * m_a + m_b;
}

void Polynomial::valueAt(mpz_class &value, std::int64_t x) const
{
    value = (static_cast<long>(x) * m_a + m_b) * static_cast<long>(x) + m_c;
}

} // namespace bignum::sieve
