// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/factoring/CurveStages.h"
#include "bignum/factoring/CurveTrier.h"
#include "bignum/primes/SystemRandom.h"

namespace bignum {

class CurveTrier::Work
{
public:
    Work(const mpz_class &n, double bound, const std::function<bool()> &ended)
        : m_stages(n, static_cast<std::uint64_t>(bound), ended)
    {
    }

    std::optional<mpz_class> tryCurve()
    {
        constexpr std::size_t bitsOfSigma = 48; // far more than there will be curves
        return m_stages.run(randomBits(bitsOfSigma) + 6);
    }

private:
    CurveStages m_stages;
};

CurveTrier::CurveTrier(const mpz_class &n, double bound, const std::function<bool()> &ended)
    : m_work(std::make_unique<Work>(n, bound, ended))
{
}

CurveTrier::~CurveTrier() = default;

std::optional<mpz_class> CurveTrier::tryCurve()
{
    return m_work->tryCurve();
}

} // namespace bignum
