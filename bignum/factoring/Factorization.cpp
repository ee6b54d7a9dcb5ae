// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/factoring/Factorization.h"

#include <algorithm>
#include <tuple>

namespace bignum {

Factorization factorize(const mpz_class &n, Effort effort)
{
    Factorization result;
    result.end = findFactors(n, effort, [&](const FoundFactor &factor) {
        result.powers.push_back(factor);
        return true;
    });
    std::sort(result.powers.begin(), result.powers.end(),
              [](const FoundFactor &a, const FoundFactor &b) {
                  return a.prime != b.prime ? a.prime : a.base < b.base;
              });
    return result;
}

std::optional<mpz_class> eulerPhi(const mpz_class &n, Effort effort)
{
    if (n < 1)
        return std::nullopt;
    const Factorization factors = factorize(n, effort);
    if (factors.end != SearchEnd::Complete)
        return std::nullopt;
    mpz_class phi = n;
    for (const FoundFactor &power : factors.powers)
        phi = phi / power.base * (power.base - 1);
    return phi;
}

} // namespace bignum
