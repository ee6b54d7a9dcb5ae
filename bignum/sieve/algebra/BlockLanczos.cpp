// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/algebra/BlockLanczos.h"

#include "bignum/sieve/algebra/BitBlock.h"
#include "bignum/sieve/algebra/BitLines.h"

#include <algorithm>
#include <bit>
#include <optional>
#include <random>

namespace bignum::sieve {

namespace {

using Mask = std::uint64_t;
constexpr std::size_t kWidth = 64;
constexpr Mask kAllColumns = ~Mask{0};

/// A matrix B of bits by columns, laid out in one piece, and its products with blocks of vectors.
class PackedMatrix
{
public:
    explicit PackedMatrix(const SparseMatrix &matrix) : m_rows(matrix.rows), m_ends{0}
    {
        for (const auto &column : matrix.columns) {
            m_ones.insert(m_ones.end(), column.begin(), column.end());
            m_ends.push_back(m_ones.size());
        }
    }

    std::size_t rows() const { return m_rows; }
    std::size_t columns() const { return m_ends.size() - 1; }

    /// B v
    void multiply(const BlockVector &v, BlockVector &product) const
    {
        product.assign(m_rows, 0);
        for (std::size_t column = 0; column < columns(); ++column)
            for (std::size_t i = m_ends[column]; i < m_ends[column + 1]; ++i)
                product[m_ones[i]] ^= v[column];
    }

    /// B^T v
    void multiplyTransposed(const BlockVector &v, BlockVector &product) const
    {
        product.resize(columns());
        for (std::size_t column = 0; column < columns(); ++column) {
            std::uint64_t sum = 0;
            for (std::size_t i = m_ends[column]; i < m_ends[column + 1]; ++i)
                sum ^= v[m_ones[i]];
            product[column] = sum;
        }
    }

private:
    std::size_t m_rows;
    std::vector<std::uint32_t> m_ones;
    std::vector<std::size_t> m_ends;
};

/// The columns S of a block of vectors on which A is regular, and the inverse there: Winv of the
/// paper, zero outside S.
struct Selection
{
    Block inverse{};
    Mask columns = 0;
};

/// Exchanges row `target` with the first of the rows order[from...] that has a one in the column of
/// that name; false where none has.
bool bringPivot(Block &searched, Block &other, const std::array<std::size_t, kWidth> &order,
                std::size_t from)
{
    const std::size_t target = order[from];
    for (std::size_t k = from; k < kWidth; ++k) {
        if ((searched[order[k]] >> target & 1) == 0)
            continue;
        std::swap(searched[order[k]], searched[target]);
        std::swap(other[order[k]], other[target]);
        return true;
    }
    return false;
}

/// Clears a column of `cleared` but for its pivot, doing the same additions in `other`.
void clearColumn(Block &cleared, Block &other, std::size_t pivot)
{
    for (std::size_t row = 0; row < kWidth; ++row) {
        if (row == pivot || (cleared[row] >> pivot & 1) == 0)
            continue;
        cleared[row] ^= cleared[pivot];
        other[row] ^= other[pivot];
    }
}

/// Section 8 of the paper: Gauss and Jordan on [V^T A V | I]. Columns that were not chosen last
/// time come first, for each must be chosen at least every second time; nothing where one is not.
std::optional<Selection> select(Block product, Mask chosenBefore)
{
    std::array<std::size_t, kWidth> order{};
    for (std::size_t i = 0; i < kWidth; ++i)
        order[i] = i;
    std::stable_partition(order.begin(), order.end(),
                          [&](std::size_t i) { return (chosenBefore >> i & 1) == 0; });
    Selection selection{identityBlock(), 0};
    for (std::size_t i = 0; i < kWidth; ++i) {
        const std::size_t pivot = order[i];
        if (bringPivot(product, selection.inverse, order, i)) {
            clearColumn(product, selection.inverse, pivot);
            selection.columns |= Mask{1} << pivot;
        } else if (bringPivot(selection.inverse, product, order, i)) {
            clearColumn(selection.inverse, product, pivot);
            selection.inverse[pivot] = 0;
            product[pivot] = 0;
        } else {
            return std::nullopt;
        }
    }
    if ((selection.columns | chosenBefore) != kAllColumns)
        return std::nullopt;
    return selection;
}

/// One V_i with what the next two steps need of it.
struct Step
{
    BlockVector v;
    Selection chosen;
    Block sum{};  ///< V^T A^2 V S S^T + V^T A V
    Block rest{}; ///< I - V^T A V Winv
};

/// The iteration of section 6: A = B^T B is never formed. `x` grows to a solution of A x = A y.
class Iteration
{
public:
    Iteration(const PackedMatrix &matrix, const BlockVector &y) : m_matrix(matrix), m_x(y)
    {
        const BlockVector none(matrix.columns());
        m_before.v = none;
        m_before.chosen.columns = kAllColumns;
        m_twoBefore.v = none;
        multiplyByA(y, m_first);
        m_now.v = m_first;
    }

    enum class Result { Going, Done, Failed };

    Result advance()
    {
        multiplyByA(m_now.v, m_image);
        const Block product = transposedProduct(m_now.v, m_image);
        if (product == Block{})
            return Result::Done;
        const auto chosen = select(product, m_before.chosen.columns);
        if (!chosen)
            return Result::Failed;
        m_now.chosen = *chosen;
        m_now.sum = (transposedProduct(m_image, m_image) & chosen->columns) + product;
        m_now.rest = identityBlock() + product * chosen->inverse;
        makeNext(product);
        return Result::Going;
    }

    /// x - y and the last V: what the null space is made of.
    const BlockVector &difference() const { return m_x; }
    const BlockVector &last() const { return m_now.v; }

private:
    void multiplyByA(const BlockVector &v, BlockVector &product)
    {
        m_matrix.multiply(v, m_rowSums);
        m_matrix.multiplyTransposed(m_rowSums, product);
    }

    void makeNext(const Block &product)
    {
        const Mask columns = m_now.chosen.columns;
        const BlockMultiplier toX(m_now.chosen.inverse * transposedProduct(m_now.v, m_first));
        const BlockMultiplier d(identityBlock() + m_now.chosen.inverse * m_now.sum);
        const BlockMultiplier e(m_before.chosen.inverse * (product & columns));
        const BlockMultiplier f(m_twoBefore.chosen.inverse *
                                (m_before.rest * m_before.sum & columns));
        BlockVector &next = m_twoBefore.v; // its place: each row is read before it is written
        for (std::size_t i = 0; i < next.size(); ++i) {
            m_x[i] ^= toX(m_now.v[i]);
            next[i] = (m_image[i] & columns) ^ d(m_now.v[i]) ^ e(m_before.v[i]) ^ f(next[i]);
        }
        std::swap(m_twoBefore, m_before);
        std::swap(m_before, m_now);
    }

    const PackedMatrix &m_matrix;
    BlockVector m_x;
    BlockVector m_first;
    BlockVector m_image;   ///< A V
    BlockVector m_rowSums; ///< B V
    Step m_now;
    Step m_before;
    Step m_twoBefore;
};

BlockVector randomVector(std::size_t size, std::uint64_t seed)
{
    std::mt19937_64 random(seed);
    BlockVector vector(size);
    std::generate(vector.begin(), vector.end(), random);
    return vector;
}

/// The combinations of the columns of both vectors that B sends to zero.
std::vector<Dependency> nullSpace(const PackedMatrix &matrix, const BlockVector &first,
                                  const BlockVector &second)
{
    BitLines lines(2 * kWidth, matrix.rows(), matrix.columns());
    BlockVector image;
    std::size_t line = 0;
    for (const BlockVector *vector : {&first, &second}) {
        matrix.multiply(*vector, image);
        for (std::size_t bit = 0; bit < kWidth; ++bit, ++line) {
            for (std::size_t i = 0; i < image.size(); ++i)
                if ((image[i] >> bit & 1) != 0)
                    lines.setHead(line, i);
            for (std::size_t i = 0; i < vector->size(); ++i)
                if (((*vector)[i] >> bit & 1) != 0)
                    lines.setTail(line, i);
        }
    }
    std::vector<Dependency> found;
    for (line = 0; line < 2 * kWidth; ++line)
        if (auto dependency = lines.reduce(line))
            found.push_back(std::move(*dependency));
    return found;
}

} // namespace

std::vector<Dependency> lanczosDependencies(const SparseMatrix &matrix, std::uint64_t seed,
                                            const StopSignal &stop)
{
    const PackedMatrix packed(matrix);
    Iteration iteration(packed, randomVector(packed.columns(), seed));
    // Each step takes 63.2 columns on average; a run that goes on and on has lost its way.
    for (std::size_t left = packed.columns() / 60 + 20; left > 0 && !stop.stopped(); --left) {
        const auto result = iteration.advance();
        if (result == Iteration::Result::Failed)
            return {};
        if (result == Iteration::Result::Done)
            return nullSpace(packed, iteration.difference(), iteration.last());
    }
    return {};
}

} // namespace bignum::sieve
