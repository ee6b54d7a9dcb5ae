// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/factoring/CurveStages.h"
#include "bignum/factoring/CurveTrier.h"
#include "bignum/primes/SystemRandom.h"

namespace bignum {

namespace {

class OwnTrier : public CurveTrier
{
public:
    OwnTrier(const mpz_class &n, double bound, const std::function<bool()> &ended)
        : m_stages(n, static_cast<std::uint64_t>(bound), ended)
    {
    }

    std::optional<mpz_class> tryCurve() override
    {
        constexpr std::size_t bitsOfSigma = 48; // far more than there will be curves
        return m_stages.run(randomBits(bitsOfSigma) + 6);
    }

private:
    CurveStages m_stages;
};

} // namespace

std::unique_ptr<CurveTrier> curveTrier(const mpz_class &n, double bound,
                                       const std::function<bool()> &ended)
{
    return std::make_unique<OwnTrier>(n, bound, ended);
}

} // namespace bignum
