// SPDX-License-Identifier: GPL-3.0-or-later
#include "NaiveRelations.h"

#include "bignum/sieve/algebra/BitLines.h"
#include "bignum/sieve/algebra/RelationSets.h"

#include <QTest>
#include <map>
#include <random>
#include <thread>

using namespace bignum;
using namespace bignum::sieve;

namespace {

const StopSignal kNoStop{Deadline(std::chrono::hours(1))};

/// Relations with nothing but large primes: edges of a graph.
std::vector<Relation> edges(std::initializer_list<std::array<std::uint64_t, 2>> larges)
{
    std::vector<Relation> relations;
    for (const auto &large : larges)
        relations.push_back({bignum::fromUint64(1000 + relations.size()), {}, large});
    return relations;
}

const mpz_class kLongNumber("10000000000000000000000000000000000000000000000000000000000000000000");

/// Whether every large prime occurs an even number of times in the set.
bool isEven(const RelationStore &store, const RelationSet &set)
{
    std::map<std::uint64_t, int> times;
    for (const std::uint32_t number : set)
        for (const std::uint64_t prime : store.relation(number).large)
            times[prime] += prime == 1 ? 2 : 1;
    return std::ranges::all_of(times, [](const auto &entry) { return entry.second % 2 == 0; });
}

} // namespace

class TestRelationStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesBackWhatWasAdded()
    {
        const std::vector<Relation> added{
            {mpz_class(0), {}, {1, 1}},
            {mpz_class(7), {0, 1, 1, 1, 127, 128, 16383, 16384, 100000}, {1, 1}},
            {kLongNumber / 3, {3, 3}, {65537, 1}},
            {kLongNumber / 2, std::vector<std::uint32_t>(300, 5), {4294967291, 4294967291}},
        };
        RelationStore store(kLongNumber);
        store.add(added);
        QCOMPARE(store.size(), added.size());
        QCOMPARE(store.partials(), std::size_t{2});
        for (std::size_t i = 0; i < added.size(); ++i) {
            const Relation kept = store.relation(i);
            QVERIFY(kept.root == added[i].root);
            QVERIFY(kept.factors == added[i].factors);
            QVERIFY(kept.large == added[i].large);
        }
    }

    void dropsEqualRoots()
    {
        const mpz_class n = 1009 * 1013;
        RelationStore store(n);
        for (const mpz_class &root :
             {mpz_class(5), mpz_class(5), mpz_class(n - 5), mpz_class(n + 5), mpz_class(-5),
              mpz_class(6), mpz_class(6 - 7 * n)})
            store.add(std::vector<Relation>{{root, {1}, {1, 1}}});
        QCOMPARE(store.size(), std::size_t{2});
        QCOMPARE(store.duplicates(), std::size_t{5});
        QCOMPARE(store.independent(), std::size_t{2});
    }

    void refusesLongPrimes()
    {
        RelationStore store(kLongNumber);
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument, store.add(edges({{1ULL << 32, 1}})));
    }

    void countsCycles_data()
    {
        QTest::addColumn<std::vector<Relation>>("relations");
        QTest::addColumn<std::size_t>("cycles");
        const auto row = [](const char *name, std::vector<Relation> relations, std::size_t cycles) {
            QTest::newRow(name) << std::move(relations) << cycles;
        };
        row("none", {}, 0);
        row("without large primes", edges({{1, 1}, {1, 1}}), 2);
        row("a prime twice", edges({{1, 11}, {1, 11}}), 1);
        row("a prime three times", edges({{1, 11}, {11, 1}, {1, 11}}), 2);
        row("the same prime twice in one", edges({{11, 11}}), 1);
        row("a tree", edges({{1, 11}, {11, 13}, {17, 13}, {1, 19}}), 0);
        row("a triangle with 1", edges({{1, 11}, {11, 13}, {13, 1}}), 1);
        row("a triangle apart", edges({{17, 11}, {11, 13}, {13, 17}, {1, 19}}), 1);
        row("two cycles with a common side",
            edges({{11, 13}, {13, 17}, {17, 11}, {17, 19}, {19, 11}}), 2);
    }
    void countsCycles()
    {
        QFETCH(const std::vector<Relation>, relations);
        QFETCH(const std::size_t, cycles);
        RelationStore store(kLongNumber);
        store.add(relations);
        QCOMPARE(store.independent(), cycles);
        const auto sets = relationSets(store, kNoStop);
        QCOMPARE(sets.size(), cycles);
    }

    void setsOfRandomGraphs()
    {
        std::mt19937 random(1);
        for (const unsigned primes : {3U, 50U, 300U, 4000U}) {
            RelationStore store(kLongNumber);
            std::vector<Relation> relations;
            for (int i = 0; i < 2000; ++i)
                relations.push_back(
                    {mpz_class(1000 + i),
                     {static_cast<std::uint32_t>(i)},
                     {1 + random() % primes, random() % 2 == 0 ? 1 : random() % primes + 1}});
            store.add(relations);
            const auto sets = relationSets(store, kNoStop);
            QCOMPARE(sets.size(), store.independent());
            BitLines lines(sets.size(), 0, relations.size());
            for (std::size_t i = 0; i < sets.size(); ++i) {
                QVERIFY(isEven(store, sets[i]));
                for (const std::uint32_t number : sets[i])
                    lines.setTail(i, number);
                QVERIFY2(lines.reduce(i), "a set that depends on others");
            }
        }
    }

    void manyAreKeptSmall()
    {
        constexpr std::size_t count = 200000;
        RelationStore store(kLongNumber);
        std::mt19937 random(2);
        gmp_randclass bits(gmp_randinit_default);
        std::vector<Relation> batch;
        for (std::size_t i = 0; i < count; ++i) {
            Relation relation{
                bits.get_z_range(kLongNumber), {}, {1000003 + random() % 100000000, 1}};
            for (int k = 0; k < 25; ++k)
                relation.factors.push_back(
                    static_cast<std::uint32_t>(random() % 40000 >> random() % 16));
            batch.push_back(std::move(relation));
        }
        store.add(batch);
        QCOMPARE(store.size(), count);
        QVERIFY2(store.bytesUsed() < 120 * count,
                 std::to_string(store.bytesUsed() / count).c_str());
    }

    void threadsAddAtOnce()
    {
        RelationStore store(kLongNumber);
        const auto add = [&](unsigned long first) {
            for (unsigned long i = 0; i < 2000; ++i)
                store.add(std::vector<Relation>{{mpz_class(first + i), {1}, {1, 1}}});
        };
        std::thread other(add, 1);
        add(1001);
        other.join();
        QCOMPARE(store.size(), std::size_t{3000});
        QCOMPARE(store.independent(), std::size_t{3000});
    }

    void setsMultiplyToSquaresOfTheirPrimes()
    {
        const NaiveRelations naive(mpz_class("100000980001501"), 60, 40000, 10000);
        QVERIFY(naive.store.independent() > 60);
        QVERIFY(naive.store.partials() > 100);
        for (const RelationSet &set : relationSets(naive.store, kNoStop))
            QVERIFY(isEven(naive.store, set));
    }
};

QTEST_APPLESS_MAIN(TestRelationStore)
#include "tst_RelationStore.moc"
