// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/factoring/TrialDivision.h"

#include "bignum/arithmetic/Word.h"
#include "bignum/factoring/PollardRho.h"
#include "bignum/primes/SmallPrimes.h"

namespace bignum {

namespace {

/// Where the rho method is quicker at what is left.
unsigned long divisionLimit(const mpz_class &n)
{
    const std::size_t bits = mpz_sizeinbase(n.get_mpz_t(), 2);
    if (bits <= 64)
        return 400;
    return bits <= kShortRhoBits ? 1U << 13 : kSmallPrimeLimit;
}

} // namespace

std::vector<SmallFactor> removeSmallFactors(mpz_class &n)
{
    std::vector<SmallFactor> found;
    const mp_bitcnt_t twos = mpz_scan1(n.get_mpz_t(), 0);
    if (twos > 0) {
        n >>= twos;
        found.push_back({2, twos});
    }

    const SmallPrimes &table = smallPrimes();
    for (const PrimeGroup &group : table.groups) {
        const unsigned long first = table.primes[group.first];
        if (n < first * first || first > divisionLimit(n))
            break;
        const mp_limb_t residue = limbModulo(n, group.product);
        for (std::uint32_t i = 0; i < group.count; ++i) {
            const std::uint32_t divisor = table.primes[group.first + i];
            if (residue % divisor != 0)
                continue;
            const mpz_class p(divisor);
            const mp_bitcnt_t exponent = mpz_remove(n.get_mpz_t(), n.get_mpz_t(), p.get_mpz_t());
            found.push_back({p, exponent});
        }
    }
    return found;
}

} // namespace bignum
