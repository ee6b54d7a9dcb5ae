// SPDX-License-Identifier: GPL-3.0-or-later
#include "NaiveRelations.h"

#include "bignum/sieve/algebra/BitBlock.h"
#include "bignum/sieve/algebra/BitLines.h"
#include "bignum/sieve/algebra/BlockLanczos.h"
#include "bignum/sieve/algebra/Dependencies.h"
#include "bignum/sieve/algebra/MatrixFilter.h"
#include "bignum/sieve/algebra/RelationSets.h"
#include "bignum/sieve/algebra/SquareRoot.h"

#include <QTest>
#include <algorithm>
#include <random>

using namespace bignum;
using namespace bignum::sieve;

namespace {

const StopSignal kNoStop{Deadline(std::chrono::hours(1))};
const StopSignal kStopped{Deadline(std::chrono::seconds(-1))};

/// As the sieve makes them: row i has a one in a column with a chance of about 1 / (i + 2).
SparseMatrix sieveLike(std::size_t rows, std::size_t columns, unsigned seed)
{
    std::mt19937 random(seed);
    SparseMatrix matrix{rows, {}};
    for (std::size_t i = 0; i < columns; ++i) {
        std::vector<std::uint32_t> column;
        for (int k = 0; k < 25; ++k)
            column.push_back(static_cast<std::uint32_t>(
                std::pow(static_cast<double>(rows), static_cast<double>(random()) / 4294967296.0) -
                1));
        reduceToOddOnes(column);
        matrix.columns.push_back(column);
    }
    return matrix;
}

bool areIndependent(const std::vector<Dependency> &dependencies, std::size_t columns)
{
    BitLines lines(dependencies.size(), 0, columns);
    for (std::size_t i = 0; i < dependencies.size(); ++i) {
        for (const std::uint32_t column : dependencies[i])
            lines.setTail(i, column);
        if (!lines.reduce(i))
            return false;
    }
    return true;
}

bool areDependencies(const SparseMatrix &matrix, const std::vector<Dependency> &found)
{
    return areIndependent(found, matrix.columns.size()) &&
           std::ranges::all_of(found, [&](const Dependency &d) { return isDependency(matrix, d); });
}

} // namespace

class TestSieveMatrix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dependencyByDefinition()
    {
        const SparseMatrix matrix{3, {{0, 1}, {1, 2}, {0, 2}, {}}};
        QVERIFY(isDependency(matrix, {0, 1, 2}));
        QVERIFY(isDependency(matrix, {3}));
        QVERIFY(!isDependency(matrix, {0, 1}));
        QVERIFY(!isDependency(matrix, {}));
    }

    void blocksMultiply()
    {
        std::mt19937_64 random(3);
        Block a;
        Block b;
        std::ranges::generate(a, random);
        std::ranges::generate(b, random);
        const Block product = a * b;
        const BlockMultiplier timesB(b);
        BlockVector v(a.begin(), a.end());
        BlockVector w(b.begin(), b.end());
        const Block transposed = transposedProduct(v, w);
        for (std::size_t i = 0; i < 64; ++i) {
            QCOMPARE(timesB(a[i]), product[i]);
            for (std::size_t j = 0; j < 64; ++j) {
                std::uint64_t rowByColumn = 0;
                std::uint64_t columnByColumn = 0;
                for (std::size_t k = 0; k < 64; ++k) {
                    rowByColumn ^= a[i] >> k & b[k] >> j & 1;
                    columnByColumn ^= a[k] >> i & b[k] >> j & 1;
                }
                QCOMPARE(product[i] >> j & 1, rowByColumn);
                QCOMPARE(transposed[i] >> j & 1, columnByColumn);
            }
        }
    }

    void gauss_data()
    {
        QTest::addColumn<SparseMatrix>("matrix");
        QTest::addColumn<std::size_t>("least");
        QTest::newRow("empty") << SparseMatrix{} << std::size_t{0};
        QTest::newRow("zero columns") << SparseMatrix{2, {{}, {}}} << std::size_t{2};
        QTest::newRow("identity") << SparseMatrix{3, {{0}, {1}, {2}}} << std::size_t{0};
        QTest::newRow("two equal") << SparseMatrix{3, {{0, 2}, {1}, {0, 2}}} << std::size_t{1};
        for (const std::size_t rows : {1UL, 63UL, 64UL, 65UL, 500UL})
            QTest::addRow("%zu rows", rows) << sieveLike(rows, rows + 20, 4) << std::size_t{20};
    }
    void gauss()
    {
        QFETCH(const SparseMatrix, matrix);
        QFETCH(const std::size_t, least);
        const auto found = gaussianDependencies(matrix, kNoStop);
        QVERIFY(found.size() >= least);
        QVERIFY(areDependencies(matrix, found));
    }

    void lanczos()
    {
        using Size = std::pair<std::size_t, std::size_t>;
        for (const auto &[rows, columns] :
             {Size(400, 440), Size(1000, 1040), Size(2000, 2010), Size(1000, 1500)}) {
            const SparseMatrix matrix = sieveLike(rows, columns, 5);
            int successes = 0;
            for (std::uint64_t seed = 1; seed <= 10; ++seed) {
                const auto found = lanczosDependencies(matrix, seed, kNoStop);
                QVERIFY(areDependencies(matrix, found));
                successes += found.size() >= 10 ? 1 : 0;
            }
            QVERIFY2(successes >= 6, std::to_string(successes).c_str());
            QVERIFY(dependenciesOf(matrix, kNoStop).size() >= 10);
        }
    }

    void lanczosEndsWithoutDependencies()
    {
        SparseMatrix matrix{2000, {}};
        for (std::uint32_t row = 0; row < 2000; ++row)
            matrix.columns.push_back(row == 0 ? std::vector{row} : std::vector{row - 1, row});
        for (std::uint64_t seed = 1; seed <= 5; ++seed)
            QVERIFY(lanczosDependencies(matrix, seed, kNoStop).empty());
        QVERIFY(dependenciesOf(matrix, kNoStop).empty());
    }

    void filterKeepsDependencies_data()
    {
        QTest::addColumn<SparseMatrix>("matrix");
        QTest::newRow("empty") << SparseMatrix{};
        QTest::newRow("no ones") << SparseMatrix{2, {{}, {}, {}}};
        QTest::newRow("singletons all the way") << SparseMatrix{4, {{0}, {0, 1}, {1, 2}, {2, 3}}};
        QTest::newRow("small") << sieveLike(50, 90, 6);
        QTest::newRow("few to spare") << sieveLike(2000, 2030, 7);
        QTest::newRow("many to spare") << sieveLike(2000, 2500, 8);
    }
    void filterKeepsDependencies()
    {
        QFETCH(const SparseMatrix, matrix);
        const FilteredMatrix small = filtered(matrix, kNoStop);
        QCOMPARE(small.sources.size(), small.matrix.columns.size());
        QVERIFY(small.matrix.columns.size() <= matrix.columns.size());
        // The excess is kept up to its bound: the dependencies of one are those of the other.
        const std::size_t excess =
            std::min(kExcess, matrix.columns.size() - std::min(matrix.columns.size(), matrix.rows));
        QVERIFY(small.matrix.columns.size() >= small.matrix.rows + excess);

        std::vector<Dependency> found;
        for (const Dependency &dependency : gaussianDependencies(small.matrix, kNoStop)) {
            Dependency columns;
            for (const std::uint32_t column : dependency)
                columns = sumOf(columns, small.sources[column]);
            found.push_back(columns);
        }
        QVERIFY(found.size() >= excess);
        QVERIFY(areDependencies(matrix, found));
    }

    void stops()
    {
        const SparseMatrix matrix = sieveLike(2000, 2040, 9);
        QVERIFY(gaussianDependencies(matrix, kStopped).empty());
        QVERIFY(lanczosDependencies(matrix, 1, kStopped).empty());
        QVERIFY(dependenciesOf(matrix, kStopped).empty());
        filtered(matrix, kStopped);
    }

    void squaresSplit_data()
    {
        QTest::addColumn<std::string>("number");
        QTest::addColumn<std::size_t>("parts");
        QTest::newRow("two primes") << std::string("100000980001501") << std::size_t{2};
        QTest::newRow("three primes") << std::string("1005306552331") << std::size_t{3};
        QTest::newRow("the square of a prime") << std::string("1000006000009") << std::size_t{1};
    }
    void squaresSplit()
    {
        QFETCH(const std::string, number);
        QFETCH(const std::size_t, parts);
        const NaiveRelations naive(mpz_class(number), 80, 60000, 10000);
        const auto sets = relationSets(naive.store, kNoStop);
        const FilteredMatrix small =
            filtered(parityMatrix(naive.store, sets, naive.primes.size(), kNoStop), kNoStop);
        const auto found = gaussianDependencies(small.matrix, kNoStop);
        QVERIFY(found.size() >= 20);
        SplitNumber split(naive.n);
        for (const Dependency &dependency : found) {
            RelationSet relations;
            for (const std::uint32_t column : dependency)
                for (const std::uint32_t set : small.sources[column])
                    relations.insert(relations.end(), sets[set].begin(), sets[set].end());
            reduceToOddOnes(relations);
            const auto squares = congruentSquares(naive.store, relations, naive.primes, naive.n);
            QVERIFY(squares);
            QVERIFY((squares->x * squares->x - squares->y * squares->y) % naive.n == 0);
            split.splitBy(*squares);
        }
        mpz_class product = 1;
        for (const mpz_class &part : split.parts())
            product *= part;
        QVERIFY(product == naive.n);
        QCOMPARE(split.parts().size(), parts);
        QCOMPARE(split.isComplete(), parts > 1);
    }

    void noSquareFromOddPowers()
    {
        const mpz_class n = 1649; // 41^2 = 32 = 2^5 and 43^2 = 200 = 2^3 5^2
        const std::vector<std::uint32_t> primes{1, 2, 5};
        RelationStore store(n);
        store.add(std::vector<Relation>{{41, {1, 1, 1, 1, 1}, {1, 1}},
                                        {43, {1, 1, 1, 2, 2}, {1, 1}},
                                        {44, {1, 1, 1, 1, 1}, {1, 1}}});
        using Numbers = std::vector<std::uint32_t>;
        QVERIFY(congruentSquares(store, Numbers{0, 1}, primes, n));
        QVERIFY(!congruentSquares(store, Numbers{0}, primes, n));
        QVERIFY2(!congruentSquares(store, Numbers{1, 2}, primes, n), "44^2 is not 32");
    }
};

QTEST_APPLESS_MAIN(TestSieveMatrix)
#include "tst_SieveMatrix.moc"
