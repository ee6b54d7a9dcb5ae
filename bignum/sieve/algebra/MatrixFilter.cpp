// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/algebra/MatrixFilter.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace bignum::sieve {

namespace {

using Index = std::uint32_t;
using List = std::vector<Index>;

/// Rows of more ones than that at the start are never merged, so nobody asks where their ones are.
constexpr std::size_t kFollowedWeight = 24;
constexpr std::size_t kMaxMerge = 10;

/// What a step of block Lanczos spends on a column beside its ones, in units of a one: seven table
/// products of eight look-ups and five sweeps over the vectors. Measured at 65 digits; between 40
/// and 80 nothing changes.
constexpr std::ptrdiff_t kColumnCost = 40;

/// Up to here Gauss takes less time than the merges (measured).
constexpr std::size_t kUnmergedColumns = 300;

class Filter
{
public:
    explicit Filter(SparseMatrix matrix)
        : m_columns(std::move(matrix.columns)),
          m_sources(m_columns.size()),
          m_alive(m_columns.size(), true),
          m_weight(matrix.rows),
          m_where(matrix.rows),
          m_waiting(kMaxMerge + 1),
          m_aliveColumns(m_columns.size())
    {
        for (Index column = 0; column < m_columns.size(); ++column) {
            m_sources[column] = {column};
            m_ones += m_columns[column].size();
            for (const Index row : m_columns[column])
                ++m_weight[row];
        }
        m_followed.resize(matrix.rows);
        for (Index row = 0; row < matrix.rows; ++row) {
            m_followed[row] = m_weight[row] <= kFollowedWeight;
            m_usedRows += m_weight[row] > 0 ? 1 : 0;
            enqueue(row);
        }
        for (Index column = 0; column < m_columns.size(); ++column)
            for (const Index row : m_columns[column])
                if (m_followed[row])
                    m_where[row].push_back(column);
    }

    /// Takes out columns until kExcess more than rows are left.
    void trim(const StopSignal &stop)
    {
        removeSingletons();
        while (m_aliveColumns > m_usedRows + kExcess && !stop.stopped()) {
            removeHeaviest(m_aliveColumns - m_usedRows - kExcess);
            removeSingletons();
        }
    }

    void merge(const StopSignal &stop)
    {
        for (std::size_t steps = 0; steps % 256 != 0 || !stop.stopped(); ++steps) {
            const auto lightest = std::find_if(m_waiting.begin(), m_waiting.end(),
                                               [](const List &rows) { return !rows.empty(); });
            if (lightest == m_waiting.end())
                return;
            const Index row = lightest->back();
            lightest->pop_back();
            if (m_weight[row] == static_cast<std::size_t>(lightest - m_waiting.begin()))
                mergeRow(row);
        }
    }

    FilteredMatrix result()
    {
        FilteredMatrix result;
        List newRow(m_weight.size());
        for (std::size_t row = 0; row < m_weight.size(); ++row)
            newRow[row] = static_cast<Index>(m_weight[row] > 0 ? result.matrix.rows++ : 0);
        for (std::size_t column = 0; column < m_columns.size(); ++column) {
            if (!m_alive[column])
                continue;
            for (Index &row : m_columns[column])
                row = newRow[row];
            result.matrix.columns.push_back(std::move(m_columns[column]));
            result.sources.push_back(std::move(m_sources[column]));
        }
        return result;
    }

private:
    void enqueue(Index row)
    {
        if (m_followed[row] && m_weight[row] > 0 && m_weight[row] <= kMaxMerge)
            m_waiting[m_weight[row]].push_back(row);
    }

    void addOne(Index row, Index column)
    {
        ++m_ones;
        m_usedRows += m_weight[row]++ == 0 ? 1 : 0;
        if (m_followed[row])
            m_where[row].push_back(column);
        enqueue(row);
    }

    void takeOne(Index row, Index column)
    {
        --m_ones;
        m_usedRows -= --m_weight[row] == 0 ? 1 : 0;
        if (m_followed[row])
            std::erase(m_where[row], column);
        enqueue(row);
    }

    void remove(Index column)
    {
        m_alive[column] = false;
        --m_aliveColumns;
        for (const Index row : m_columns[column])
            takeOne(row, column);
        m_columns[column] = {};
        m_sources[column] = {};
    }

    void removeSingletons()
    {
        List &singletons = m_waiting[1];
        while (!singletons.empty()) {
            const Index row = singletons.back();
            singletons.pop_back();
            if (m_weight[row] == 1)
                remove(m_where[row].front());
        }
    }

    void removeHeaviest(std::size_t count)
    {
        List columns;
        for (Index column = 0; column < m_columns.size(); ++column)
            if (m_alive[column])
                columns.push_back(column);
        const auto end = columns.begin() + static_cast<std::ptrdiff_t>(count);
        std::nth_element(columns.begin(), end, columns.end(), [&](Index a, Index b) {
            return m_columns[a].size() > m_columns[b].size();
        });
        std::for_each(columns.begin(), end, [&](Index column) { remove(column); });
    }

    /// Adds the lightest column of a row to the others where that pays: by one column less against
    /// the ones that it is expected to add, were no two of them in the same place.
    void mergeRow(Index row)
    {
        const List columns = m_where[row];
        const Index pivot =
            *std::min_element(columns.begin(), columns.end(), [&](Index a, Index b) {
                return m_columns[a].size() < m_columns[b].size();
            });
        const auto others = static_cast<std::ptrdiff_t>(columns.size()) - 1;
        const auto weight = static_cast<std::ptrdiff_t>(m_columns[pivot].size());
        const auto average = static_cast<std::ptrdiff_t>(m_ones / m_aliveColumns);
        if (others * (weight - 2) - weight > average + kColumnCost)
            return;
        for (const Index column : columns)
            if (column != pivot)
                addColumn(pivot, column);
        remove(pivot);
    }

    void addColumn(Index from, Index to)
    {
        List sum = sumOf(m_columns[from], m_columns[to]);
        for (const Index row : m_columns[from]) {
            if (std::binary_search(m_columns[to].begin(), m_columns[to].end(), row))
                takeOne(row, to);
            else
                addOne(row, to);
        }
        m_columns[to] = std::move(sum);
        m_sources[to] = sumOf(m_sources[from], m_sources[to]);
    }

    std::vector<List> m_columns;
    std::vector<List> m_sources;
    std::vector<bool> m_alive;
    std::vector<std::size_t> m_weight; ///< by row: ones
    std::vector<List> m_where; ///< by row: the columns of its ones, where the row is followed
    std::vector<bool> m_followed;
    std::vector<List> m_waiting; ///< by weight: rows that had it once
    std::size_t m_aliveColumns;
    std::size_t m_usedRows = 0;
    std::size_t m_ones = 0;
};

} // namespace

FilteredMatrix filtered(SparseMatrix matrix, const StopSignal &stop)
{
    const bool paysOff = matrix.columns.size() > kUnmergedColumns;
    Filter filter(std::move(matrix));
    filter.trim(stop);
    if (paysOff)
        filter.merge(stop);
    return filter.result();
}

} // namespace bignum::sieve
