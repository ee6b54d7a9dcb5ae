// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/factoring/EllipticCurves.h"

#include "bignum/factoring/CurveTrier.h"
#include "bignum/factoring/Threads.h"

#include <atomic>
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
    const std::function<bool()> ended = [&] { return search.found || search.stop.stopped(); };
    std::unique_ptr<CurveTrier> trier;
    double bound = 0;
    while (const auto curve = ended() ? std::nullopt : nextCurve(search)) {
        if (curve->bound != bound)
            trier = curveTrier(search.n, curve->bound, ended);
        bound = curve->bound;
        const auto factor = trier->tryCurve();
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
