// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/RelationStore.h"
#include "bignum/sieve/StopSignal.h"
#include "bignum/sieve/plan/PolynomialSource.h"

#include <atomic>
#include <mutex>

namespace bignum::sieve {

/// Why the sieving ended.
enum class CollectOutcome {
    Enough,      ///< the store has the relations that were wanted
    Stopped,     ///< the signal asked for it
    Exhausted,   ///< there are no more polynomials
    OutOfMemory, ///< the store can only be thrown away
};

/// Sieves on all threads that it is given, a family of polynomials (those of one `a`) a thread.
class RelationCollector
{
public:
    /// `plan` must outlive the collector.
    explicit RelationCollector(const Plan &plan) : m_plan(plan), m_source(plan) {}

    /// Adds relations to the store until it has so many independent ones. To be called again when
    /// they were not enough: no polynomial is sieved twice. The caller's thread is one of the
    /// threads; no more are started than can be had.
    CollectOutcome collect(RelationStore &store, std::size_t wanted, const StopSignal &stop,
                           unsigned threads);

    /// The polynomials sieved so far.
    std::uint64_t polynomials() const { return m_polynomials; }

private:
    struct Run
    {
        Run(RelationStore &aStore, std::size_t aWanted, const StopSignal &aStop)
            : store(aStore), wanted(aWanted), stop(aStop)
        {
        }

        RelationStore &store;
        std::size_t wanted;
        const StopSignal &stop;
        std::atomic<bool> ended{false};
        std::mutex mutex; ///< guards the outcome, and the store against use after a failure
        CollectOutcome outcome{CollectOutcome::Exhausted};
    };

    void work(Run &run);
    static void handOver(std::vector<Relation> &relations, Run &run);
    CollectOutcome sieve(Run &run);

    const Plan &m_plan;
    PolynomialSource m_source;
    std::atomic<std::uint64_t> m_polynomials{0};
};

} // namespace bignum::sieve
