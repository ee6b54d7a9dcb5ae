// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/QuadraticSieve.h"

#include "bignum/sieve/algebra/Dependencies.h"
#include "bignum/sieve/algebra/MatrixFilter.h"
#include "bignum/sieve/algebra/RelationSets.h"
#include "bignum/sieve/algebra/SquareRoot.h"
#include "bignum/sieve/sieving/RelationCollector.h"

#include <algorithm>
#include <new>
#include <optional>

namespace bignum::sieve {

namespace {

/// How many relation sets are looked at first. Not all primes of a large base occur: from 60 digits
/// on the matrix has columns enough at 96 to 98 per cent of it (measured).
std::size_t firstSets(std::size_t base)
{
    constexpr std::size_t largeBase = 3000;
    return base < largeBase ? base : base - base / 20;
}

/// Sets that are collected for each column that is missing: some bring a new prime with them.
constexpr double kSetsPerColumn = 1.25;

/// Matrices solved without any use: with 20 dependencies each, one has as good as no chance.
constexpr int kMatrices = 4;

/// Adds the time of a scope to a stage.
class Stopwatch
{
public:
    explicit Stopwatch(SieveTimes::Duration &total) : m_total(total) {}
    ~Stopwatch() { m_total += Deadline::Clock::now() - m_start; }
    Stopwatch(const Stopwatch &) = delete;
    Stopwatch &operator=(const Stopwatch &) = delete;

private:
    SieveTimes::Duration &m_total;
    Deadline::Clock::time_point m_start = Deadline::Clock::now();
};

/// One number on its way from the relations to its factors.
class Run
{
public:
    Run(const Plan &plan, const StopSignal &stop, unsigned threads, SieveResult &result)
        : m_plan(plan),
          m_stop(stop),
          m_threads(threads),
          m_result(result),
          m_store(plan.n),
          m_collector(plan),
          m_split(plan.n)
    {
    }

    SieveOutcome run()
    {
        std::size_t wanted = firstSets(m_plan.base.size());
        for (int matrices = 0; matrices < kMatrices;) {
            const auto ended = collect(wanted);
            if (ended)
                return *ended;
            const FilteredMatrix small = makeMatrix();
            if (m_stop.stopped())
                return SieveOutcome::Stopped;
            const std::size_t needed = small.matrix.rows + kExcess;
            if (small.matrix.columns.size() < needed) {
                wanted = m_store.independent() + setsFor(needed - small.matrix.columns.size());
                continue;
            }
            solve(small);
            if (m_split.parts().size() > 1)
                return SieveOutcome::Split;
            if (m_stop.stopped())
                return SieveOutcome::Stopped;
            wanted = m_store.independent() + setsFor(kExcess);
            ++matrices;
        }
        return SieveOutcome::Failed;
    }

    void writeResult() const
    {
        m_result.factors = m_split.parts();
        m_result.counts.relations = m_store.size();
        m_result.counts.partials = m_store.partials();
        m_result.counts.polynomials = m_collector.polynomials();
    }

private:
    static std::size_t setsFor(std::size_t columns)
    {
        return 1 + static_cast<std::size_t>(kSetsPerColumn * static_cast<double>(columns));
    }

    /// Why the sieving ended without the relations that were wanted, if so.
    std::optional<SieveOutcome> collect(std::size_t wanted)
    {
        const Stopwatch watch(m_result.times.sieving);
        switch (m_collector.collect(m_store, wanted, m_stop, m_threads)) {
        case CollectOutcome::Enough:
            return std::nullopt;
        case CollectOutcome::Stopped:
            return SieveOutcome::Stopped;
        case CollectOutcome::OutOfMemory:
            return SieveOutcome::OutOfMemory;
        case CollectOutcome::Exhausted:
            break;
        }
        return SieveOutcome::Failed;
    }

    FilteredMatrix makeMatrix()
    {
        const Stopwatch watch(m_result.times.filter);
        m_sets = relationSets(m_store, m_stop);
        FilteredMatrix small =
            filtered(parityMatrix(m_store, m_sets, m_plan.base.size(), m_stop), m_stop);
        m_result.counts.columns = small.matrix.columns.size();
        return small;
    }

    /// Takes the square roots of dependencies until the number is split into primes.
    void solve(const FilteredMatrix &small)
    {
        std::vector<Dependency> dependencies;
        {
            const Stopwatch watch(m_result.times.matrix);
            dependencies = dependenciesOf(small.matrix, m_stop);
        }
        const Stopwatch watch(m_result.times.root);
        for (const Dependency &dependency : dependencies) {
            if (m_split.isComplete() || m_stop.stopped())
                return;
            const auto squares = congruentSquares(m_store, relationsOf(small, dependency),
                                                  m_plan.base.primes, m_plan.n);
            if (squares)
                m_split.splitBy(*squares);
        }
    }

    /// The relations that occur an odd number of times in the columns of a dependency.
    RelationSet relationsOf(const FilteredMatrix &small, const Dependency &dependency) const
    {
        RelationSet relations;
        for (const std::uint32_t column : dependency)
            for (const std::uint32_t set : small.sources[column])
                relations.insert(relations.end(), m_sets[set].begin(), m_sets[set].end());
        reduceToOddOnes(relations);
        return relations;
    }

    const Plan &m_plan;
    const StopSignal &m_stop;
    unsigned m_threads;
    SieveResult &m_result;
    RelationStore m_store;
    RelationCollector m_collector;
    std::vector<RelationSet> m_sets;
    SplitNumber m_split;
};

/// A prime of the base that divides n saves all further work.
std::optional<std::uint32_t> divisorInBase(const Plan &plan)
{
    const auto &primes = plan.base.primes;
    const auto found = std::find_if(primes.begin() + 1, primes.end(), [&](std::uint32_t p) {
        return mpz_divisible_ui_p(plan.n.get_mpz_t(), p) != 0;
    });
    return found == primes.end() ? std::nullopt : std::optional(*found);
}

void split(const mpz_class &n, const StopSignal &stop, unsigned threads, SieveResult &result)
{
    std::optional<Plan> plan;
    {
        const Stopwatch watch(result.times.plan);
        plan.emplace(n);
    }
    result.counts.multiplier = plan->multiplier;
    result.counts.base = plan->base.size();
    if (const auto divisor = divisorInBase(*plan)) {
        result.factors = {mpz_class(*divisor), n / *divisor};
        result.outcome = SieveOutcome::Split;
        return;
    }
    Run run(*plan, stop, threads, result);
    result.outcome = run.run();
    run.writeResult();
}

} // namespace

SieveResult sieveFactors(const mpz_class &n, const StopSignal &stop, unsigned threads)
{
    SieveResult result;
    try {
        split(n, stop, threads, result);
    } catch (const std::bad_alloc &) {
        result.outcome = SieveOutcome::OutOfMemory;
        result.factors.clear();
    }
    return result;
}

} // namespace bignum::sieve
