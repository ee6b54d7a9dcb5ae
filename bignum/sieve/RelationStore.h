// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/LargePrimeGraph.h"
#include "bignum/sieve/Relation.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <span>

namespace bignum::sieve {

/// The relations found so far, packed: one takes about 80 bytes at 80 digits, so that a million of
/// them leave room for the sieve. Large primes must be below 2^32. After std::bad_alloc the
/// store can only be thrown away.
class RelationStore
{
public:
    /// `n` is the number to be split: roots are kept modulo n and up to the sign.
    explicit RelationStore(const mpz_class &n);

    /// Takes a batch in, from any thread; one lock serves the whole batch. Relations whose root is
    /// there already are dropped: they say nothing new.
    void add(std::span<const Relation> batch);

    /// How many independent sets the relations give by now: those without large primes and the
    /// cycles of the others. Any thread may ask; it costs no lock.
    std::size_t independent() const { return m_independent.load(std::memory_order_relaxed); }

    // What follows is for the time after the sieving, when nobody adds any more.

    std::size_t size() const { return m_offsets.size(); }
    std::size_t partials() const { return m_partials; }
    std::size_t duplicates() const { return m_duplicates; }

    /// Relation number i, its factors in ascending order.
    Relation relation(std::size_t i) const;
    /// The large primes of relation number i alone.
    std::array<std::uint32_t, 2> largePrimes(std::size_t i) const;
    /// Its factors alone, put behind what is in the list.
    void appendFactors(std::size_t i, std::vector<std::uint32_t> &factors) const;

    const LargePrimeGraph &graph() const { return m_graph; }
    std::size_t bytesUsed() const;

private:
    using Byte = unsigned char;

    void addOne(const Relation &relation);
    bool isNew(std::uint32_t index);
    void growIndex();
    std::uint32_t append(const Relation &relation);
    Byte *room(std::size_t bytes);
    const Byte *record(std::size_t i) const;
    const Byte *rootBytes(std::size_t i) const;
    std::size_t hashOfRoot(std::size_t i) const;

    mpz_class m_n;
    std::size_t m_rootSize; ///< bytes of a root
    std::mutex m_mutex;
    std::vector<std::unique_ptr<Byte[]>> m_chunks;
    std::size_t m_used;                   ///< bytes of the last chunk
    std::vector<std::uint32_t> m_offsets; ///< by relation: where its record begins
    std::vector<std::uint32_t> m_index;   ///< open addressing by root: relations, or kFree
    LargePrimeGraph m_graph;
    std::size_t m_partials = 0;
    std::size_t m_duplicates = 0;
    std::atomic<std::size_t> m_independent{0};
};

} // namespace bignum::sieve
