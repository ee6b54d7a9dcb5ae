// SPDX-License-Identifier: GPL-3.0-or-later
#include "SieveNumbers.h"

#include "bignum/arithmetic/Word.h"
#include "bignum/sieve/Cores.h"
#include "bignum/sieve/plan/SmallModulus.h"
#include "bignum/sieve/sieving/FamilySieve.h"
#include "bignum/sieve/sieving/RelationCollector.h"

#include <QTest>
#include <algorithm>
#include <thread>

#include <cstdlib>
#include <new>

using namespace bignum;
using namespace bignum::sieve;

namespace {

/// Allocations that still succeed, while memory is short.
std::atomic<int> allocationsLeft{0};
std::atomic<bool> memoryIsShort{false};

void countAllocation()
{
    if (memoryIsShort && allocationsLeft-- <= 0)
        throw std::bad_alloc();
}

void *orBadAlloc(void *memory)
{
    return memory != nullptr ? memory : throw std::bad_alloc();
}

} // namespace

void *operator new(std::size_t size)
{
    countAllocation();
    return orBadAlloc(std::malloc(size));
}

void *operator new(std::size_t size, std::align_val_t alignment)
{
    countAllocation();
    const auto line = static_cast<std::size_t>(alignment);
#if defined(_WIN32)
    return orBadAlloc(_aligned_malloc(size, line));
#else
    return orBadAlloc(std::aligned_alloc(line, (size + line - 1) / line * line));
#endif
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::align_val_t) noexcept
{
#if defined(_WIN32)
    _aligned_free(memory);
#else
    std::free(memory);
#endif
}

Q_DECLARE_METATYPE(bignum::sieve::VectorLevel)

namespace {

using namespace std::chrono_literals;

/// Primes on all sides of the block and of the interval, in a base that is quickly made.
constexpr Parameters kMixed{6000, 3, 40, 0, 60, 2};
/// The same with two large primes.
constexpr Parameters kTwoLarge{2000, 2, 40, 1.8, 60, 2};

Plan planOf(unsigned bits, const Parameters &parameters, VectorLevel level)
{
    Plan plan(semiprime(bits, 9), modulo(semiprime(bits, 9), 4), parameters);
    plan.kernels = &kernelsFor(level);
    return plan;
}

void addLevels()
{
    QTest::addColumn<VectorLevel>("level");
    QTest::newRow("plain") << VectorLevel::Plain;
    if (bestVectorLevel() >= VectorLevel::Avx2)
        QTest::newRow("AVX2") << VectorLevel::Avx2;
    if (bestVectorLevel() >= VectorLevel::Avx512)
        QTest::newRow("AVX-512") << VectorLevel::Avx512;
}

bool multipliesOut(const Relation &relation, const Plan &plan)
{
    mpz_class product =
        bignum::fromUint64(relation.large[0]) * bignum::fromUint64(relation.large[1]);
    for (const std::uint32_t factor : relation.factors)
        product *= factor == 0 ? mpz_class(-1) : mpz_class(plan.base.primes[factor]);
    const mpz_class difference = relation.root * relation.root - product;
    return mpz_divisible_p(difference.get_mpz_t(), plan.n.get_mpz_t()) != 0;
}

/// What the first polynomials of one family give, in an order of its own.
std::vector<std::string> relationsOf(const Plan &plan, int polynomials)
{
    FamilySieve family(plan);
    family.begin(PolynomialSource(plan).next().value());
    while (polynomials-- > 0 && family.sieveNext()) {
    }
    std::vector<std::string> written;
    for (Relation &relation : family.relations()) {
        std::sort(relation.factors.begin(), relation.factors.end());
        std::string text = relation.root.get_str();
        for (const std::uint32_t factor : relation.factors)
            text += ' ' + std::to_string(factor);
        written.push_back(text + " |" + std::to_string(relation.large[0]) + ' ' +
                          std::to_string(relation.large[1]));
    }
    std::sort(written.begin(), written.end());
    return written;
}

} // namespace

class TestSieving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roots_data() { addLevels(); }
    /// q(x) is divisible at the two roots and nowhere else, after any number of steps.
    void roots()
    {
        QFETCH(VectorLevel, level);
        const Plan plan = planOf(180, kMixed, level);
        RootTable table(plan);
        Polynomial polynomial(plan, PolynomialSource(plan).next().value());
        table.begin(polynomial);
        for (int steps = 0; steps < 20; ++steps) {
            const Step step = polynomial.advance();
            const Roots roots = table.moving(step.row);
            plan.kernels->move(roots, 0, table.places(), step.down);
            for (std::size_t i = kFirstOddPrime; i < plan.base.size(); i += i < 40 ? 1 : 397) {
                if (std::ranges::count(polynomial.factors(), i) != 0)
                    continue;
                const std::uint32_t p = plan.base.primes[i];
                std::vector<std::uint32_t> expected;
                mpz_class value;
                for (std::uint32_t position = 0; position < p; ++position) {
                    if (p > 1000 && position != roots.first[i] && position != roots.second[i])
                        continue;
                    polynomial.valueAt(value, std::int64_t{position} - plan.reach());
                    if (modulo(value, p) == 0)
                        expected.push_back(position);
                }
                QCOMPARE(std::min(roots.first[i], roots.second[i]), expected.front());
                QCOMPARE(std::max(roots.first[i], roots.second[i]), expected.back());
                QCOMPARE(expected.size(), std::size_t{roots.first[i] == roots.second[i] ? 1U : 2U});
            }
        }
    }

    void bytes_data() { addLevels(); }
    /// The bytes fall by the logarithms of the primes that have a root there, up to their rounding.
    void bytes()
    {
        QFETCH(VectorLevel, level);
        const Plan plan = planOf(180, kMixed, level);
        const BaseParts parts(plan);
        RootTable table(plan);
        Buckets buckets(plan, parts);
        BlockSieve blocks(plan, parts);
        Polynomial polynomial(plan, PolynomialSource(plan).next().value());
        table.begin(polynomial);
        const Step step = polynomial.advance();
        const Roots roots = table.moving(step.row);
        plan.kernels->move(roots, 0, parts.bucketed, step.down);
        buckets.fill(roots, step.down);
        blocks.begin(roots);

        for (std::uint32_t block = 0; block < plan.parameters.blocks; ++block) {
            std::vector<int> sum(kBlockSize);
            std::vector<int> hits(kBlockSize);
            for (std::size_t i = parts.sieved; i < plan.base.size(); ++i) {
                const std::uint32_t p = plan.base.primes[i];
                for (const std::uint32_t root : {roots.first[i], roots.second[i]})
                    for (std::uint32_t at = root; at < plan.interval(); at += p)
                        if (at / kBlockSize == block) {
                            sum[at % kBlockSize] += parts.scale.of(p);
                            ++hits[at % kBlockSize];
                        }
            }
            blocks.sieveNext();
            buckets.apply(block, blocks.bytes());
            for (std::uint32_t at = 0; at < kBlockSize; ++at) {
                const auto fallen =
                    static_cast<std::uint8_t>(parts.scale.start() - blocks.bytes()[at]);
                QVERIFY(std::abs(fallen - sum[at] % 256) <= hits[at]);
            }
        }
    }

    void levelsAgree_data() { addLevels(); }
    void levelsAgree()
    {
        QFETCH(VectorLevel, level);
        for (const Parameters &parameters : {kMixed, kTwoLarge}) {
            const auto found = relationsOf(planOf(180, parameters, level), 30);
            QVERIFY(found.size() > 10);
            QCOMPARE(found, relationsOf(planOf(180, parameters, VectorLevel::Plain), 30));
        }
    }

    void highBytes_data() { addLevels(); }
    void highBytes()
    {
        QFETCH(VectorLevel, level);
        std::vector<std::uint8_t> block(kBlockSize, 127);
        std::vector<std::uint16_t> places(kBlockSize);
        QCOMPARE(kernelsFor(level).findHighBytes(block.data(), places.data()), std::size_t{0});
        const std::vector<std::uint16_t> high{0, 1, 63, 64, 4000, 4007, kBlockSize - 1};
        for (const std::uint16_t place : high)
            block[place] = place % 2 == 0 ? 128 : 255;
        places.resize(kernelsFor(level).findHighBytes(block.data(), places.data()));
        QCOMPARE(places, high);
    }

    void cofactors()
    {
        // The first of two is 0 where there is no relation; primes beyond 99 999 are too large,
        // and so is a product beyond a thousand millions.
        for (const auto &[cofactor, first, second] :
             std::initializer_list<std::array<std::uint64_t, 3>>{{1, 1, 1},
                                                                 {1009, 1009, 1},
                                                                 {99991, 99991, 1},
                                                                 {100003, 0, 0},
                                                                 {1009 * 99991, 1009, 99991},
                                                                 {10007 * 10007, 10007, 10007},
                                                                 {15485863, 0, 0},
                                                                 {1009 * 100003, 0, 0},
                                                                 {99989ULL * 99991, 0, 0}}) {
            const auto primes = largePrimes(cofactor, {1000, 99999, 1e9});
            QCOMPARE(primes.has_value(), first != 0);
            QVERIFY(!primes || ((*primes)[0] == first && (*primes)[1] == second));
        }
    }

    void relations_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<unsigned>("multiplier");
        const auto row = [](const char *name, const mpz_class &n, unsigned multiplier) {
            QTest::newRow(name) << QString::fromStdString(n.get_str()) << multiplier;
        };
        row("50 bits", semiprime(50, 1), 0);
        row("64 bits", semiprime(64, 2), 0);
        row("40 digits", semiprime(133, 3), 0);
        row("three primes", semiprime(80, 4) * bignum::fromUint64(1099511627791), 0);
        row("a prime of the base divides n", semiprime(110, 5) * 1009, 0);
        row("the square of a prime of the base divides n", semiprime(110, 5) * 1009 * 1009, 0);
        row("the multiplier divides n", 3 * semiprime(110, 7), 3 * modulo(semiprime(110, 7), 4));
        row("a square", semiprime(60, 7) * semiprime(60, 7), 0);
        row("round", mpz_class("126582278481012658227848101265822806309"), 0);
    }
    void relations()
    {
        QFETCH(QString, number);
        QFETCH(unsigned, multiplier);
        const mpz_class n(number.toStdString());
        const Plan best(n);
        const Plan plan(n, multiplier == 0 ? best.multiplier : multiplier, best.parameters);
        RelationStore store(n);
        const StopSignal stop(Deadline(60s));
        RelationCollector collector(plan);
        const std::size_t wanted = plan.base.size() + 20;
        QVERIFY(collector.collect(store, wanted, stop, 1) == CollectOutcome::Enough);
        QVERIFY(store.independent() >= wanted);
        QVERIFY(collector.polynomials() > 0);
        for (std::size_t i = 0; i < store.size(); ++i)
            QVERIFY(multipliesOut(store.relation(i), plan));
    }

    /// Threads sieve different polynomials, and the collector goes on where it was.
    void threads()
    {
        const Plan plan(semiprime(140, 8));
        RelationStore store(plan.n);
        const StopSignal stop(Deadline(60s));
        RelationCollector collector(plan);
        for (const std::size_t wanted : {plan.base.size() / 2, plan.base.size()}) {
            QVERIFY(collector.collect(store, wanted, stop, 3) == CollectOutcome::Enough);
            QVERIFY(store.independent() >= wanted);
        }
        QVERIFY(store.duplicates() < store.size() / 50);
        for (std::size_t i = 0; i < store.size(); ++i)
            QVERIFY(multipliesOut(store.relation(i), plan));
        QVERIFY(availableCores() >= 1);
    }

    void smallNumbersEnd()
    {
        const Plan plan(semiprime(50, 1));
        RelationStore store(plan.n);
        RelationCollector collector(plan);
        QVERIFY(collector.collect(store, 1000000, StopSignal(Deadline(60s)), 2) ==
                CollectOutcome::Exhausted);
    }

    /// On whatever thread and wherever it happens.
    void memoryRunsOut()
    {
        const Plan plan(semiprime(140, 8));
        for (const int allocations : {0, 1, 4, 16, 64, 300, 1500, 6000}) {
            RelationStore store(plan.n);
            RelationCollector collector(plan);
            const StopSignal stop(Deadline(60s));
            allocationsLeft = allocations;
            memoryIsShort = true;
            const CollectOutcome outcome = collector.collect(store, plan.base.size(), stop, 2);
            memoryIsShort = false;
            QVERIFY2(outcome == CollectOutcome::OutOfMemory, std::to_string(allocations).c_str());
        }
    }

    void stops()
    {
        const Plan plan(semiprime(264, 1));
        for (const auto &[threads, after] :
             {std::pair(1U, 0ms), {2U, 0ms}, {1U, 300ms}, {2U, 300ms}}) {
            RelationStore store(plan.n);
            StopSignal stop(Deadline(1h));
            RelationCollector collector(plan);
            std::thread asking([&stop, time = after] {
                std::this_thread::sleep_for(time);
                stop.request();
            });
            const auto outcome = collector.collect(store, plan.base.size(), stop, threads);
            asking.join();
            QVERIFY(outcome == CollectOutcome::Stopped);
        }
    }
};

QTEST_APPLESS_MAIN(TestSieving)
#include "tst_Sieving.moc"
