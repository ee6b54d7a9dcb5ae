// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/algebra/RelationSets.h"

#include <limits>
#include <numeric>

namespace bignum::sieve {

namespace {

using Index = std::uint32_t;
constexpr Index kNone = std::numeric_limits<Index>::max();

struct Edge
{
    Index from;
    Index to;
};

class SpanningForest
{
public:
    SpanningForest(std::vector<Edge> edges, std::size_t vertices)
        : m_edges(std::move(edges)), m_parentEdge(vertices, kNone), m_depth(vertices, kNone)
    {
        hangEdges();
        for (Index vertex = 0; vertex < vertices; ++vertex) // 1 is vertex 0, so it comes first
            if (m_depth[vertex] == kNone)
                growFrom(vertex);
    }

    bool holds(Index edge) const
    {
        return m_parentEdge[m_edges[edge].from] == edge || m_parentEdge[m_edges[edge].to] == edge;
    }

    /// The edges of the cycle that an edge outside the forest closes.
    RelationSet cycleOf(Index edge) const
    {
        RelationSet cycle{edge};
        auto [a, b] = m_edges[edge];
        while (a != b) {
            Index &deeper = m_depth[a] >= m_depth[b] ? a : b;
            cycle.push_back(m_parentEdge[deeper]);
            deeper = otherEnd(m_parentEdge[deeper], deeper);
        }
        return cycle;
    }

private:
    Index otherEnd(Index edge, Index vertex) const
    {
        return m_edges[edge].from == vertex ? m_edges[edge].to : m_edges[edge].from;
    }

    /// The edges at vertex v stand in m_incident from m_first[v] to m_first[v + 1].
    void hangEdges()
    {
        m_first.assign(m_depth.size() + 1, 0);
        for (const auto &[from, to] : m_edges) {
            ++m_first[from];
            ++m_first[to];
        }
        std::partial_sum(m_first.begin(), m_first.end(), m_first.begin());
        m_incident.resize(2 * m_edges.size());
        for (Index edge = 0; edge < m_edges.size(); ++edge) {
            m_incident[--m_first[m_edges[edge].from]] = edge;
            m_incident[--m_first[m_edges[edge].to]] = edge;
        }
    }

    void growFrom(Index root)
    {
        m_depth[root] = 0;
        std::vector<Index> queue{root};
        for (std::size_t next = 0; next < queue.size(); ++next) {
            const Index vertex = queue[next];
            for (Index i = m_first[vertex]; i < m_first[vertex + 1]; ++i) {
                const Index other = otherEnd(m_incident[i], vertex);
                if (m_depth[other] != kNone)
                    continue;
                m_depth[other] = m_depth[vertex] + 1;
                m_parentEdge[other] = m_incident[i];
                queue.push_back(other);
            }
        }
    }

    std::vector<Edge> m_edges;
    std::vector<Index> m_first;
    std::vector<Index> m_incident;
    std::vector<Index> m_parentEdge; ///< by vertex: the edge towards the root
    std::vector<Index> m_depth;
};

} // namespace

std::vector<RelationSet> relationSets(const RelationStore &store, const StopSignal &stop)
{
    std::vector<Edge> edges(store.size());
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const auto [p, q] = store.largePrimes(i);
        edges[i] = {store.graph().vertexOf(p), store.graph().vertexOf(q)};
    }
    const SpanningForest forest(std::move(edges), store.graph().vertices());
    std::vector<RelationSet> sets;
    for (Index edge = 0; edge < store.size() && !(edge % 4096 == 0 && stop.stopped()); ++edge)
        if (!forest.holds(edge))
            sets.push_back(forest.cycleOf(edge));
    return sets;
}

SparseMatrix parityMatrix(const RelationStore &store, const std::vector<RelationSet> &sets,
                          std::size_t baseSize, const StopSignal &stop)
{
    SparseMatrix matrix{baseSize, {}};
    for (std::size_t i = 0; i < sets.size() && !(i % 256 == 0 && stop.stopped()); ++i) {
        std::vector<std::uint32_t> factors;
        for (const std::uint32_t number : sets[i])
            store.appendFactors(number, factors);
        reduceToOddOnes(factors);
        factors.shrink_to_fit();
        matrix.columns.push_back(std::move(factors));
    }
    return matrix;
}

} // namespace bignum::sieve
