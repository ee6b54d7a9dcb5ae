// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/sieving/RelationCollector.h"

#include "bignum/sieve/sieving/FamilySieve.h"

#include <exception>
#include <thread>

namespace bignum::sieve {

namespace {

/// Relations that a thread gathers before it asks for the store.
constexpr std::size_t kBatch = 16;
/// Blocks sieved (some 30 us each) between two looks at the clock.
constexpr std::uint32_t kBlocksUnwatched = 16;

} // namespace

CollectOutcome RelationCollector::collect(RelationStore &store, std::size_t wanted,
                                          const StopSignal &stop, unsigned threads)
{
    Run run(store, wanted, stop);
    std::vector<std::thread> others;
    try {
        others.reserve(threads);
        while (others.size() + 1 < threads)
            others.emplace_back([this, &run] { work(run); });
    } catch (const std::exception &) {
        // Fewer threads do as well.
    }
    work(run);
    for (std::thread &other : others)
        other.join();
    return run.outcome;
}

/// The first thread that ends for a reason of its own tells it, and the others follow. Without
/// memory all is lost, whatever another one said.
void RelationCollector::work(Run &run)
{
    CollectOutcome outcome = CollectOutcome::OutOfMemory;
    try {
        outcome = sieve(run);
    } catch (const std::exception &) {
        // Nothing else than memory can fail here.
    }
    const std::lock_guard lock(run.mutex);
    if (outcome == CollectOutcome::Exhausted)
        return;
    if (outcome == CollectOutcome::OutOfMemory || !run.ended)
        run.outcome = outcome;
    run.ended = true;
}

void RelationCollector::handOver(std::vector<Relation> &relations, Run &run)
{
    const std::lock_guard lock(run.mutex);
    if (run.ended)
        return;
    try {
        run.store.add(relations);
    } catch (const std::exception &) {
        run.ended = true;
        throw;
    }
    relations.clear();
}

CollectOutcome RelationCollector::sieve(Run &run)
{
    FamilySieve family(m_plan);
    std::vector<Relation> &relations = family.relations();
    std::uint32_t unwatched = 0;
    while (auto factors = m_source.next()) {
        family.begin(std::move(*factors));
        while (family.sieveNext()) {
            ++m_polynomials;
            if (relations.size() >= kBatch)
                handOver(relations, run);
            if (run.store.independent() >= run.wanted)
                return CollectOutcome::Enough;
            unwatched += m_plan.parameters.blocks;
            if (run.ended || (unwatched >= kBlocksUnwatched && run.stop.stopped()))
                return CollectOutcome::Stopped;
            unwatched %= kBlocksUnwatched;
        }
    }
    handOver(relations, run);
    return run.store.independent() >= run.wanted ? CollectOutcome::Enough
                                                 : CollectOutcome::Exhausted;
}

} // namespace bignum::sieve
