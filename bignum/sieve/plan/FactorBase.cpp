// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/plan/FactorBase.h"

#include "bignum/primes/PrimeStream.h"
#include "bignum/sieve/plan/SmallModulus.h"

namespace bignum::sieve {

FactorBase::FactorBase(const mpz_class &kn, std::size_t size) : primes{1, 2}, roots{0, 1}
{
    primes.reserve(size);
    roots.reserve(size);
    PrimeStream candidates(3, 40 * std::uint64_t{size}); // 2 is there already
    while (primes.size() < size) {
        const auto p = static_cast<std::uint32_t>(candidates.next());
        if (const auto root = squareRootModulo(modulo(kn, p), p)) {
            primes.push_back(p);
            roots.push_back(*root);
        }
    }
}

} // namespace bignum::sieve
