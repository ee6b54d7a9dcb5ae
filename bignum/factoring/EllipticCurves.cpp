// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/factoring/EllipticCurves.h"

#include "bignum/factoring/Threads.h"

#include <atomic>
#include <ecm.h>
#include <mutex>

namespace bignum {

namespace {

/// What the threads that look for a factor of one number have in common.
struct Search
{
    const mpz_class &n;
    std::span<const CurveLevel> levels;
    const StopSignal &stop;
    std::atomic<bool> found{false};
    std::mutex mutex{}; ///< guards what follows
    std::size_t level = 0;
    int curvesOfLevel = 0; ///< that were begun
    int curves = 0;        ///< of all levels
    std::optional<CurveFactor> result{};
};

/// What the running curve of this thread looks at: its hook is handed no argument.
thread_local const Search *currentSearch = nullptr;

int isEnded()
{
    return currentSearch->found || currentSearch->stop.stopped() ? 1 : 0;
}

/// The parameters of a thread's curves, which keep what those of one bound have in common.
class CurveParameters
{
public:
    explicit CurveParameters(const Search &search)
    {
        ecm_init(m_parameters);
        m_parameters->stop_asap = isEnded;
        // Numbers next to a power of two have an arithmetic of their own there, which keeps its
        // buffers in variables that all threads share.
        m_parameters->repr = ECM_MOD_NOBASE2;
        currentSearch = &search;
    }
    ~CurveParameters()
    {
        ecm_clear(m_parameters);
        currentSearch = nullptr;
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

/// The next curve that nobody has begun.
std::optional<CurveLevel> nextCurve(Search &search)
{
    const std::lock_guard lock(search.mutex);
    while (search.level < search.levels.size() &&
           search.curvesOfLevel == search.levels[search.level].curves) {
        ++search.level;
        search.curvesOfLevel = 0;
    }
    if (search.level == search.levels.size())
        return std::nullopt;
    ++search.curvesOfLevel;
    ++search.curves;
    return CurveLevel{search.levels[search.level].bound, search.curves};
}

void tryCurves(Search &search)
{
    std::optional<CurveParameters> parameters;
    double bound = 0;
    while (const auto curve =
               search.found || search.stop.stopped() ? std::nullopt : nextCurve(search)) {
        if (curve->bound != bound)
            parameters.emplace(search);
        bound = curve->bound;
        const auto factor = parameters->tryCurve(search.n, bound);
        if (!factor)
            continue;
        const std::lock_guard lock(search.mutex);
        if (!search.found)
            search.result = {*factor, bound, curve->curves};
        search.found = true;
    }
}

} // namespace

std::optional<CurveFactor> curveFactor(const mpz_class &n, std::span<const CurveLevel> levels,
                                       const StopSignal &stop, unsigned threads)
{
    if (levels.empty())
        return std::nullopt;
    Search search{n, levels, stop};
    runOnThreads(threads, [&] { tryCurves(search); });
    return search.result;
}

} // namespace bignum
