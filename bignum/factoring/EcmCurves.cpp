// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/factoring/CurveTrier.h"

#include <ecm.h>

namespace bignum {

namespace {

/// What the running curve of this thread asks: its hook is handed no argument.
thread_local const std::function<bool()> *currentEnded = nullptr;

int isEnded()
{
    return (*currentEnded)() ? 1 : 0;
}

/// The parameters of a thread's curves, which keep what they have in common.
class EcmTrier : public CurveTrier
{
public:
    EcmTrier(const mpz_class &n, double bound, const std::function<bool()> &ended)
        : m_n(n), m_bound(bound), m_ended(ended)
    {
        ecm_init(m_parameters);
        m_parameters->stop_asap = isEnded;
        // Numbers next to a power of two have an arithmetic of their own there, which keeps its
        // buffers in variables that all threads share.
        m_parameters->repr = ECM_MOD_NOBASE2;
    }
    ~EcmTrier() override { ecm_clear(m_parameters); }

    std::optional<mpz_class> tryCurve() override
    {
        // A curve leaves its own point and parameter behind; zeros ask for a new random one.
        m_parameters->B1done = ECM_DEFAULT_B1_DONE;
        m_parameters->param = ECM_PARAM_DEFAULT;
        mpz_set_ui(m_parameters->x, 0);
        mpz_set_ui(m_parameters->y, 0);
        mpz_set_ui(m_parameters->sigma, 0);

        currentEnded = &m_ended;
        mpz_class number = m_n; // not const in the interface
        mpz_class factor;
        const int found = ecm_factor(factor.get_mpz_t(), number.get_mpz_t(), m_bound, m_parameters);
        if (found > 0 && factor > 1 && factor < m_n &&
            mpz_divisible_p(m_n.get_mpz_t(), factor.get_mpz_t()))
            return factor;
        return std::nullopt;
    }

private:
    const mpz_class &m_n;
    double m_bound;
    const std::function<bool()> &m_ended;
    ecm_params m_parameters;
};

} // namespace

std::unique_ptr<CurveTrier> curveTrier(const mpz_class &n, double bound,
                                       const std::function<bool()> &ended)
{
    return std::make_unique<EcmTrier>(n, bound, ended);
}

} // namespace bignum
