// SPDX-License-Identifier: GPL-3.0-or-later
#include "SieveNumbers.h"

#include "bignum/arithmetic/Word.h"
#include "bignum/sieve/plan/InverseRows.h"
#include "bignum/sieve/plan/Multiplier.h"
#include "bignum/sieve/plan/Polynomial.h"
#include "bignum/sieve/plan/PolynomialSource.h"
#include "bignum/sieve/plan/SmallModulus.h"

#include <QTest>
#include <cmath>
#include <set>
#include <thread>

using namespace bignum::sieve;

class TestSievePlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void words()
    {
        for (const std::uint64_t value : {UINT64_C(0), UINT64_C(1) << 32, ~UINT64_C(0)})
            QCOMPARE(bignum::toUint64(bignum::fromUint64(value)), value);
        QCOMPARE(bignum::toUint64((mpz_class(5) << 64) + 7), UINT64_C(7));
    }

    void squareRoots()
    {
        for (const std::uint32_t p : {3U, 5U, 7U, 17U, 97U, 193U, 257U, 7681U, 12289U, 65537U}) {
            std::set<std::uint32_t> squares;
            for (std::uint32_t x = 0; x < p; ++x)
                squares.insert(multiplyModulo(x, x, p));
            for (std::uint32_t a = 0; a < std::min(p, 300U); ++a) {
                const auto root = squareRootModulo(a, p);
                QCOMPARE(root.has_value(), squares.contains(a));
                if (root)
                    QCOMPARE(multiplyModulo(*root, *root, p), a);
            }
        }
    }

    void inverses()
    {
        for (std::uint32_t m : {2U, 9U, 101U, 4294967291U})
            for (std::uint32_t a : {1U, 5U, 7U, 4294967290U})
                if (a % m != 0)
                    QCOMPARE(multiplyModulo(a % m, inverseModulo(a % m, m), m), 1U);

        const FactorBase base(semiprime(100, 1), 200);
        InverseRows rows(base, base.size() + 5);
        for (const std::uint32_t q : {2U, 50U, 199U}) {
            const std::uint32_t *row = rows.row(q);
            for (std::size_t i = kFirstOddPrime; i < base.size(); ++i)
                QCOMPARE(multiplyModulo(row[i], base.primes[q], base.primes[i]), i == q ? 0U : 1U);
            QCOMPARE(row[base.size() + 4], 0U);
        }
    }

    void multiplier()
    {
        // All small multipliers divide the second, and its own best one the third.
        std::vector<mpz_class> numbers{mpz_class("10000000000000000000000000000000000000121"),
                                       mpz_class("3762028293219135245955000690015"),
                                       mpz_class("126582278481012658227848101265822806309")};
        for (unsigned i = 0; i < 8; ++i)
            numbers.push_back(semiprime(90 + 13 * i, i));
        for (const mpz_class &n : numbers) {
            const std::uint32_t k = chooseMultiplier(n);
            QCOMPARE(modulo(n * k, 4), 1U);
            for (std::uint32_t d = 2; d <= k; ++d)
                QVERIFY(k % (d * d) != 0 && (k % d != 0 || modulo(n, d) != 0));
        }
    }

    void factorBase()
    {
        // In the second a prime of the base divides n, in the third the multiplier has two primes.
        for (const auto &[number, multiplier] : {std::pair("1000000016000000063", 3),
                                                 {"61000000427000000000000000101", 1},
                                                 {"1000000016000000063", 15}}) {
            const mpz_class kn = mpz_class(number) * multiplier;
            const FactorBase base(kn, 120);
            QCOMPARE(base.size(), std::size_t{120});
            std::size_t next = kFirstOddPrime;
            for (mpz_class p = 3; next < base.size(); mpz_nextprime(p.get_mpz_t(), p.get_mpz_t())) {
                if (mpz_kronecker(kn.get_mpz_t(), p.get_mpz_t()) < 0)
                    continue;
                const mpz_class root(base.roots[next]);
                QCOMPARE(mpz_class(base.primes[next]), p);
                QCOMPARE(modulo(kn - root * root, base.primes[next]), 0U);
                ++next;
            }
        }
    }

    void polynomials_data()
    {
        QTest::addColumn<unsigned>("bits");
        for (const unsigned bits : {52U, 64U, 100U, 133U, 150U, 210U, 264U})
            QTest::addRow("%u bits", bits) << bits;
    }
    void polynomials()
    {
        QFETCH(unsigned, bits);
        const Plan plan(semiprime(bits, 3));
        PolynomialSource source(plan);
        for (int family = 0; family < 3; ++family) {
            const auto factors = source.next();
            QVERIFY(factors);
            Polynomial polynomial(plan, *factors);
            std::set<mpz_class> seen;
            for (std::uint32_t i = 0; i < polynomial.count(); ++i) {
                const mpz_class before = polynomial.b();
                if (i > 0) {
                    const Step step = polynomial.advance();
                    const mpz_class half = (before - polynomial.b()) / 2;
                    QCOMPARE(half < 0, step.down);
                    const mpz_class q = plan.base.primes[(*factors)[step.row]];
                    QVERIFY(abs(half) == polynomial.a() / q * polynomial.gammas()[step.row]);
                }
                QVERIFY(seen.insert(abs(polynomial.b())).second);
                for (const std::int64_t x : {-1000003, -1, 0, 1, 77}) {
                    mpz_class root;
                    mpz_class value;
                    polynomial.rootAt(root, x);
                    polynomial.valueAt(value, x);
                    QVERIFY(root == 2 * polynomial.a() * static_cast<long>(x) + polynomial.b());
                    QVERIFY(root * root - plan.kn == 4 * polynomial.a() * value);
                }
            }
        }
    }

    /// From the least numbers on there is an `a`, none comes twice, and the search for more ends.
    void sourceOfEverySize()
    {
        for (unsigned bits = 50; bits <= 160; ++bits) {
            const Plan plan(semiprime(bits, bits));
            PolynomialSource source(plan);
            const double best = (plan.valueBits() + 1) * std::log(2) - 2 * std::log(plan.reach());
            std::set<std::vector<std::uint32_t>> seen;
            double deviation = 0;
            for (auto factors = source.next(); factors && seen.size() < 2000;
                 factors = source.next()) {
                double size = 0;
                for (const std::uint32_t factor : *factors) {
                    QVERIFY(plan.base.roots[factor] != 0);
                    size += std::log(plan.base.primes[factor]);
                }
                if (seen.size() < 50)
                    deviation += std::abs(size - best) / 50;
                QVERIFY(std::set<std::uint32_t>(factors->begin(), factors->end()).size() ==
                        factors->size());
                QVERIFY(seen.insert(*factors).second);
            }
            QVERIFY2(seen.size() >= 100, std::to_string(bits).c_str());
            QVERIFY2(deviation < 0.7, std::to_string(bits).c_str());
        }
    }

    void sourceOfTwoThreads()
    {
        const Plan plan(semiprime(140, 5));
        PolynomialSource source(plan);
        std::vector<std::vector<std::uint32_t>> given[2];
        const auto take = [&](auto &mine) {
            while (mine.size() < 500)
                mine.push_back(source.next().value());
        };
        std::thread other([&] { take(given[1]); });
        take(given[0]);
        other.join();
        std::set<std::vector<std::uint32_t>> seen(given[0].begin(), given[0].end());
        seen.insert(given[1].begin(), given[1].end());
        QCOMPARE(seen.size(), std::size_t{1000});
    }
};

QTEST_APPLESS_MAIN(TestSievePlan)
#include "tst_SievePlan.moc"
