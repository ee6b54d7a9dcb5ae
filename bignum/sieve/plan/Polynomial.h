// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/plan/Plan.h"

namespace bignum::sieve {

/// How the roots move from one polynomial to the next: by the shift of one row, up or down.
struct Step
{
    std::size_t row;
    bool down;
};

/// The polynomials (2ax + b)^2 - kn of one `a`, one after the other: b is a sum of +-B[i], one for
/// each factor of `a`, and only one sign changes at a time, as in a Gray code (S. P. Contini,
/// "Factoring integers with the self-initializing quadratic sieve", 1997).
class Polynomial
{
public:
    /// `factors` are the base indices of the primes of `a`: odd ones that do not divide kn.
    Polynomial(const Plan &plan, std::vector<std::uint32_t> factors);

    const mpz_class &a() const { return m_a; }
    const mpz_class &b() const { return m_b; }
    const std::vector<std::uint32_t> &factors() const { return m_factors; }

    /// B[i] = gamma[i]·a/q[i] for the i-th prime q[i] of `a`, where 0 < gamma[i] < q[i].
    const std::vector<std::uint32_t> &gammas() const { return m_gammas; }

    /// Whether the first b is the sum of all B[i] and `a`: b has to be odd.
    bool liftedByA() const { return m_lifted; }

    /// How many there are: all signs but the first, since -b gives the values of b mirrored.
    std::uint32_t count() const { return 1U << (m_factors.size() - 1); }

    /// Goes on to the next, count() - 1 times.
    Step advance();

    /// 2ax + b.
    void rootAt(mpz_class &root, std::int64_t x) const;
    /// ax^2 + bx + c, which is ((2ax + b)^2 - kn) / 4a.
    void valueAt(mpz_class &value, std::int64_t x) const;

private:
    void findC();

    const mpz_class &m_kn;
    std::vector<std::uint32_t> m_factors;
    std::vector<std::uint32_t> m_gammas;
    std::vector<mpz_class> m_parts; ///< B
    mpz_class m_a = 1;
    mpz_class m_b;
    mpz_class m_c;
    bool m_lifted = false;
    std::uint32_t m_number = 0; ///< polynomials gone by
};

} // namespace bignum::sieve
