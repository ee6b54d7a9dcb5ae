// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/primes/SmallPrimes.h"

#include "bignum/arithmetic/Word.h"
#include "bignum/primes/PrimeStream.h"

#include <limits>

namespace bignum {

namespace {

SmallPrimes makeTable()
{
    SmallPrimes table;
    PrimeStream stream(3, kSmallPrimeLimit);
    for (std::uint64_t prime = stream.next(); prime < kSmallPrimeLimit; prime = stream.next())
        table.primes.push_back(static_cast<std::uint32_t>(prime));
    PrimeGroup group{1, 0, 0};
    for (const std::uint32_t prime : table.primes) {
        if (group.product > std::numeric_limits<mp_limb_t>::max() / prime) {
            table.groups.push_back(group);
            group = {1, group.first + group.count, 0};
        }
        group.product *= prime;
        ++group.count;
    }
    table.groups.push_back(group);
    return table;
}

} // namespace

const SmallPrimes &smallPrimes()
{
    static const SmallPrimes table = makeTable();
    return table;
}

bool hasSmallFactor(const mpz_class &n)
{
    const SmallPrimes &table = smallPrimes();
    for (const PrimeGroup &group : table.groups) {
        const mp_limb_t residue = limbModulo(n, group.product);
        for (std::uint32_t i = 0; i < group.count; ++i)
            if (residue % table.primes[group.first + i] == 0)
                return true;
    }
    return false;
}

} // namespace bignum
