// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/plan/InverseRows.h"

#include <algorithm>

namespace bignum::sieve {

namespace {

/// Inverses kept by a thread: 4 MB. Where the base is so large that all of its rows take more, they
/// are soon made beside the sieving of a family.
constexpr std::size_t kMostKept = 1U << 20;

/// The inverses of 1 .. q-1 modulo the prime q, each from a smaller one: q = i·d + r gives
/// 1/i = -d/r.
std::vector<std::uint32_t> inversesModulo(std::uint32_t q)
{
    std::vector<std::uint32_t> inverse(q, 1);
    for (std::uint32_t i = 2; i < q; ++i)
        inverse[i] = static_cast<std::uint32_t>(std::uint64_t{q - q / i} * inverse[q % i] % q);
    return inverse;
}

void findInverses(const FactorBase &base, std::uint32_t q, AlignedVector<std::uint32_t> &row)
{
    const std::vector<std::uint32_t> inverse = inversesModulo(q);
    for (std::size_t i = kFirstOddPrime; i < base.size(); ++i) {
        // p·t = -1 modulo q makes p·t + 1 divisible by q; the quotient is 1/q modulo p.
        const std::uint32_t p = base.primes[i];
        const std::uint32_t t = q - inverse[p % q];
        row[i] = p == q ? 0 : static_cast<std::uint32_t>((std::uint64_t{p} * t + 1) / q);
    }
}

} // namespace

InverseRows::InverseRows(const FactorBase &base, std::size_t places)
    : m_base(base), m_places(places), m_most(std::max(kMostKept / places, std::size_t{1}))
{
}

const std::uint32_t *InverseRows::row(std::uint32_t index)
{
    for (const Row &row : m_rows)
        if (row.index == index)
            return row.inverses.data();
    Row &row = freeRow();
    row.index = 0;
    findInverses(m_base, m_base.primes[index], row.inverses);
    row.index = index;
    return row.inverses.data();
}

/// A row is given up to be used again: freed and allocated between the relations, rows would tear
/// the memory to pieces.
InverseRows::Row &InverseRows::freeRow()
{
    if (m_rows.size() < m_most)
        return m_rows.emplace_back(Row{0, AlignedVector<std::uint32_t>(m_places)});
    return m_rows[m_next++ % m_most];
}

} // namespace bignum::sieve
