#include "bignum/factoring/EllipticCurves.h"

#include <ecm.h>

namespace bignum {

namespace {

/// What the running curve of this thread looks at: its hook is handed no argument.
thread_local const Deadline *currentDeadline = nullptr;

int deadlinePassed()
{
    return currentDeadline->passed() ? 1 : 0;
}

/// The parameters of one level, which keep what its curves have in common.
class CurveParameters
{
public:
    explicit CurveParameters(const Deadline &deadline)
    {
        ecm_init(m_parameters);
        m_parameters->stop_asap = deadlinePassed;
        currentDeadline = &deadline;
    }
    ~CurveParameters()
    {
        ecm_clear(m_parameters);
        currentDeadline = nullptr;
    }
    CurveParameters(const CurveParameters &) = delete;
    CurveParameters &operator=(const CurveParameters &) = delete;

    std::optional<mpz_class> tryCurve(const mpz_class &n, double bound)
    {
        // A curve leaves its own point and parameter behind; zeros ask for a new random one.
        m_parameters->B1done = ECM_DEFAULT_B1_DONE;
        m_parameters->param = ECM_PARAM_DEFAULT;
        mpz_set_ui(m_parameters->x, 0);
        mpz_set_ui(m_parameters->y, 0);
        mpz_set_ui(m_parameters->sigma, 0);

        mpz_class number = n; // not const in the interface
        mpz_class factor;
        const int found = ecm_factor(factor.get_mpz_t(), number.get_mpz_t(), bound, m_parameters);
        if (found > 0 && factor > 1 && factor < n &&
            mpz_divisible_p(n.get_mpz_t(), factor.get_mpz_t()))
            return factor;
        return std::nullopt;
    }

private:
    ecm_params m_parameters;
};

} // namespace

std::optional<mpz_class> curveFactor(const mpz_class &n, std::span<const CurveLevel> levels,
                                     const Deadline &deadline)
{
    for (const CurveLevel &level : levels) {
        CurveParameters parameters(deadline);
        for (int i = 0; i < level.curves; ++i) {
            if (deadline.passed())
                return std::nullopt;
            if (const auto factor = parameters.tryCurve(n, level.bound))
                return factor;
        }
    }
    return std::nullopt;
}

} // namespace bignum
