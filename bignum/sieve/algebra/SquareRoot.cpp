// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/algebra/SquareRoot.h"

#include "bignum/primes/Primality.h"

#include <algorithm>

namespace bignum::sieve {

namespace {

void multiplyBy(mpz_class &product, const mpz_class &factor, const mpz_class &n)
{
    product *= factor;
    product %= n;
}

/// What relations multiply to, by factors.
struct Product
{
    mpz_class root = 1;
    std::vector<std::uint32_t> exponents; ///< by index in the factor base
    std::vector<std::uint64_t> large;     ///< as often as they occur
};

Product productOf(const RelationStore &store, std::span<const std::uint32_t> relations,
                  std::size_t baseSize, const mpz_class &n)
{
    Product product;
    product.exponents.resize(baseSize);
    for (const std::uint32_t number : relations) {
        const Relation relation = store.relation(number);
        multiplyBy(product.root, relation.root, n);
        for (const std::uint32_t factor : relation.factors)
            ++product.exponents[factor];
        for (const std::uint64_t prime : relation.large)
            if (prime != 1)
                product.large.push_back(prime);
    }
    std::sort(product.large.begin(), product.large.end());
    return product;
}

bool isSquare(const Product &product)
{
    const auto isOdd = [](std::uint32_t exponent) { return exponent % 2 != 0; };
    if (product.large.size() % 2 != 0 || std::ranges::any_of(product.exponents, isOdd))
        return false;
    for (std::size_t i = 0; i < product.large.size(); i += 2)
        if (product.large[i] != product.large[i + 1])
            return false;
    return true;
}

mpz_class halfPowers(const Product &product, std::span<const std::uint32_t> primes,
                     const mpz_class &n)
{
    mpz_class y = 1;
    mpz_class power;
    for (std::size_t i = 1; i < product.exponents.size(); ++i) {
        if (product.exponents[i] == 0)
            continue;
        mpz_ui_pow_ui(power.get_mpz_t(), primes[i], product.exponents[i] / 2);
        multiplyBy(y, power, n);
    }
    for (std::size_t i = 0; i < product.large.size(); i += 2)
        multiplyBy(y, mpz_class(static_cast<std::uint32_t>(product.large[i])), n);
    return y;
}

} // namespace

std::optional<CongruentSquares> congruentSquares(const RelationStore &store,
                                                 std::span<const std::uint32_t> relations,
                                                 std::span<const std::uint32_t> primes,
                                                 const mpz_class &n)
{
    const Product product = productOf(store, relations, primes.size(), n);
    if (!isSquare(product))
        return std::nullopt;
    CongruentSquares squares{product.root, halfPowers(product, primes, n)};
    const mpz_class difference = squares.x * squares.x - squares.y * squares.y;
    if (!mpz_divisible_p(difference.get_mpz_t(), n.get_mpz_t()))
        return std::nullopt;
    return squares;
}

void SplitNumber::splitBy(const CongruentSquares &squares)
{
    const mpz_class difference = squares.x - squares.y;
    std::vector<mpz_class> composites;
    composites.swap(m_composites);
    for (const mpz_class &part : composites) {
        const mpz_class divisor = gcd(part, difference);
        if (divisor == 1 || divisor == part) {
            m_composites.push_back(part);
        } else {
            addPart(divisor);
            addPart(part / divisor);
        }
    }
}

void SplitNumber::addPart(const mpz_class &part)
{
    (isPrime(part) ? m_primes : m_composites).push_back(part);
}

std::vector<mpz_class> SplitNumber::parts() const
{
    std::vector<mpz_class> parts = m_primes;
    parts.insert(parts.end(), m_composites.begin(), m_composites.end());
    return parts;
}

} // namespace bignum::sieve
