#include "bignum/sieve/plan/InverseRows.h"

namespace bignum::sieve {

namespace {

/// The inverses of 1 .. q-1 modulo the prime q, each from a smaller one: q = i·d + r gives
/// 1/i = -d/r.
std::vector<std::uint32_t> inversesModulo(std::uint32_t q)
{
    std::vector<std::uint32_t> inverse(q, 1);
    for (std::uint32_t i = 2; i < q; ++i)
        inverse[i] = static_cast<std::uint32_t>(std::uint64_t{q - q / i} * inverse[q % i] % q);
    return inverse;
}

} // namespace

const std::uint32_t *InverseRows::row(std::uint32_t index)
{
    const auto [place, isNew] = m_rows.try_emplace(index);
    AlignedVector<std::uint32_t> &row = place->second;
    if (!isNew && !row.empty())
        return row.data();
    const std::uint32_t q = m_base.primes[index];
    const std::vector<std::uint32_t> inverse = inversesModulo(q);
    AlignedVector<std::uint32_t> fresh(m_places);
    for (std::size_t i = kFirstOddPrime; i < m_base.size(); ++i) {
        // p·t = -1 modulo q makes p·t + 1 divisible by q; the quotient is 1/q modulo p.
        const std::uint32_t p = m_base.primes[i];
        const std::uint32_t t = q - inverse[p % q];
        fresh[i] = p == q ? 0 : static_cast<std::uint32_t>((std::uint64_t{p} * t + 1) / q);
    }
    row = std::move(fresh);
    return row.data();
}

} // namespace bignum::sieve
