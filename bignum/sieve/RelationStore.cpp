// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/RelationStore.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <stdexcept>

namespace bignum::sieve {

namespace {

constexpr std::uint32_t kFree = std::numeric_limits<std::uint32_t>::max();
constexpr std::size_t kFirstSlots = 1024;                 // a power of two, as all later sizes are
constexpr std::size_t kChunkBytes = std::size_t{1} << 18; // little is lost at the end of a chunk
constexpr std::size_t kLongestNumber = 5;                 // bytes of a packed 32-bit number

/// Seven bits a byte, the lowest first; the top bit tells that more follow. Most factors, written
/// as steps from one to the next, take one or two bytes.
unsigned char *pack(std::uint32_t value, unsigned char *out)
{
    for (; value >= 0x80; value >>= 7)
        *out++ = static_cast<unsigned char>(value | 0x80);
    *out++ = static_cast<unsigned char>(value);
    return out;
}

std::uint32_t unpack(const unsigned char *&in)
{
    std::uint32_t value = 0;
    for (int shift = 0;; shift += 7) {
        const std::uint32_t byte = *in++;
        value |= (byte & 0x7F) << shift;
        if (byte < 0x80)
            return value;
    }
}

std::uint32_t narrow(std::uint64_t large)
{
    if (large >= std::uint64_t{1} << 32)
        throw std::invalid_argument("a large prime of more than 32 bits");
    return static_cast<std::uint32_t>(large);
}

} // namespace

RelationStore::RelationStore(const mpz_class &n)
    : m_n(n),
      m_rootSize(mpz_sizeinbase(n.get_mpz_t(), 256)),
      m_used(kChunkBytes),
      m_index(kFirstSlots, kFree)
{
}

void RelationStore::add(std::span<const Relation> batch)
{
    const std::lock_guard lock(m_mutex);
    for (const Relation &relation : batch)
        addOne(relation);
    m_independent.store(m_graph.cycles(), std::memory_order_relaxed);
}

void RelationStore::addOne(const Relation &relation)
{
    const std::size_t usedBefore = m_used;
    const std::size_t chunksBefore = m_chunks.size();
    const std::uint32_t offset = append(relation);
    m_offsets.push_back(offset);
    if (!isNew(static_cast<std::uint32_t>(m_offsets.size() - 1))) {
        m_offsets.pop_back();
        if (m_chunks.size() == chunksBefore)
            m_used = usedBefore;
        ++m_duplicates;
        return;
    }
    const auto [p, q] = largePrimes(m_offsets.size() - 1);
    m_graph.addEdge(p, q);
    if (p != 1 || q != 1)
        ++m_partials;
}

/// Writes the record of a relation: large primes, root, number of factors, steps between factors.
std::uint32_t RelationStore::append(const Relation &relation)
{
    std::vector<std::uint32_t> factors = relation.factors;
    std::sort(factors.begin(), factors.end());
    mpz_class root = relation.root % m_n;
    root = abs(root);
    root = std::min<mpz_class>(root, m_n - root);

    Byte *const begin = room(m_rootSize + (factors.size() + 3) * kLongestNumber);
    Byte *out = pack(narrow(relation.large[0]), begin);
    out = pack(narrow(relation.large[1]), out);
    std::memset(out, 0, m_rootSize);
    mpz_export(out, nullptr, -1, 1, 0, 0, root.get_mpz_t());
    out = pack(static_cast<std::uint32_t>(factors.size()), out + m_rootSize);
    std::uint32_t last = 0;
    for (const std::uint32_t factor : factors) {
        out = pack(factor - last, out);
        last = factor;
    }
    const std::size_t offset = (m_chunks.size() - 1) * kChunkBytes + m_used;
    m_used += static_cast<std::size_t>(out - begin);
    return static_cast<std::uint32_t>(offset);
}

/// At least so many bytes at the end of the last chunk, or in a new one.
RelationStore::Byte *RelationStore::room(std::size_t bytes)
{
    if (bytes > kChunkBytes)
        throw std::invalid_argument("a relation with too many factors");
    if (m_used + bytes > kChunkBytes) {
        if ((m_chunks.size() + 1) * kChunkBytes > std::numeric_limits<std::uint32_t>::max())
            throw std::bad_alloc();
        m_chunks.push_back(std::make_unique<Byte[]>(kChunkBytes));
        m_used = 0;
    }
    return m_chunks.back().get() + m_used;
}

bool RelationStore::isNew(std::uint32_t index)
{
    const std::size_t mask = m_index.size() - 1;
    std::size_t slot = hashOfRoot(index) & mask;
    for (; m_index[slot] != kFree; slot = (slot + 1) & mask)
        if (std::memcmp(rootBytes(m_index[slot]), rootBytes(index), m_rootSize) == 0)
            return false;
    m_index[slot] = index;
    if (4 * m_offsets.size() > 3 * m_index.size())
        growIndex();
    return true;
}

void RelationStore::growIndex()
{
    m_index.assign(2 * m_index.size(), kFree);
    const std::size_t mask = m_index.size() - 1;
    for (std::uint32_t i = 0; i < m_offsets.size(); ++i) {
        std::size_t slot = hashOfRoot(i) & mask;
        while (m_index[slot] != kFree)
            slot = (slot + 1) & mask;
        m_index[slot] = i;
    }
}

const RelationStore::Byte *RelationStore::record(std::size_t i) const
{
    return m_chunks[m_offsets[i] / kChunkBytes].get() + m_offsets[i] % kChunkBytes;
}

const RelationStore::Byte *RelationStore::rootBytes(std::size_t i) const
{
    const Byte *in = record(i);
    unpack(in);
    unpack(in);
    return in;
}

/// The low digits of a root are as good as random.
std::size_t RelationStore::hashOfRoot(std::size_t i) const
{
    std::uint64_t low = 0;
    std::memcpy(&low, rootBytes(i), std::min(sizeof low, m_rootSize));
    return static_cast<std::size_t>(low * std::uint64_t{0x9E3779B97F4A7C15} >> 32);
}

std::array<std::uint32_t, 2> RelationStore::largePrimes(std::size_t i) const
{
    const Byte *in = record(i);
    const std::uint32_t first = unpack(in);
    return {first, unpack(in)};
}

Relation RelationStore::relation(std::size_t i) const
{
    const Byte *in = record(i);
    Relation relation;
    relation.large[0] = unpack(in);
    relation.large[1] = unpack(in);
    mpz_import(relation.root.get_mpz_t(), m_rootSize, -1, 1, 0, 0, in);
    appendFactors(i, relation.factors);
    return relation;
}

void RelationStore::appendFactors(std::size_t i, std::vector<std::uint32_t> &factors) const
{
    const Byte *in = rootBytes(i) + m_rootSize;
    const std::size_t end = factors.size() + unpack(in);
    for (std::uint32_t last = 0; factors.size() < end;)
        factors.push_back(last += unpack(in));
}

std::size_t RelationStore::bytesUsed() const
{
    return m_chunks.size() * kChunkBytes +
           4 * (m_offsets.capacity() + m_index.capacity() + 2 * m_graph.vertices());
}

} // namespace bignum::sieve
