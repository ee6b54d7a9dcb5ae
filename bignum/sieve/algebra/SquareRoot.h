// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/RelationStore.h"

#include <optional>
#include <span>

namespace bignum::sieve {

/// x^2 = y^2 modulo n.
struct CongruentSquares
{
    mpz_class x;
    mpz_class y;
};

/// The two roots that relations give whose product is a square: x is the product of their roots,
/// y that of the factors and large primes, each to half the power in which it occurs. `primes` is
/// the factor base; its entry 0, which stands for -1, is not read. Nothing where the product is no
/// square, or the two squares are not congruent after all.
std::optional<CongruentSquares> congruentSquares(const RelationStore &store,
                                                 std::span<const std::uint32_t> relations,
                                                 std::span<const std::uint32_t> primes,
                                                 const mpz_class &n);

/// The factors of a number, as far as congruent squares have split it.
class SplitNumber
{
public:
    explicit SplitNumber(const mpz_class &n) : m_composites{n} {}

    /// Splits the composite parts by gcd(part, x - y).
    void splitBy(const CongruentSquares &squares);

    bool isComplete() const { return m_composites.empty(); }

    /// Numbers above 1 whose product is n, the primes first.
    std::vector<mpz_class> parts() const;

private:
    void addPart(const mpz_class &part);

    std::vector<mpz_class> m_composites;
    std::vector<mpz_class> m_primes;
};

} // namespace bignum::sieve
