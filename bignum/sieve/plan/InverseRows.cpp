#include "bignum/sieve/plan/InverseRows.h"

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

AlignedVector<std::uint32_t> inverseRow(const FactorBase &base, std::size_t places, std::uint32_t q)
{
    const std::vector<std::uint32_t> inverse = inversesModulo(q);
    AlignedVector<std::uint32_t> row(places);
    for (std::size_t i = kFirstOddPrime; i < base.size(); ++i) {
        const std::uint32_t p = base.primes[i];
        if (p == q)
            continue;
        // p·t = -1 modulo q makes p·t + 1 divisible by q; the quotient is 1/q modulo p.
        const std::uint32_t t = q - inverse[p % q];
        row[i] = static_cast<std::uint32_t>((std::uint64_t{p} * t + 1) / q);
    }
    return row;
}

} // namespace

const std::uint32_t *InverseRows::row(std::uint32_t index)
{
    if (m_rows.size() * m_places > kMostKept)
        m_rows.clear();
    AlignedVector<std::uint32_t> &row = m_rows[index];
    if (row.empty())
        row = inverseRow(m_base, m_places, m_base.primes[index]);
    return row.data();
}

} // namespace bignum::sieve
