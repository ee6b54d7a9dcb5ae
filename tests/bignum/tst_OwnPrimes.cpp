// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/primes/OddSieve.h"
#include "bignum/primes/Primality.h"
#include "bignum/primes/PrimeStream.h"
#include "tests/Tabla.h"

/// The sieve of our own, whatever the rest of the build lists primes with.
class TestOwnPrimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPrimeAndNothingElse_data()
    {
        QTest::addColumn<quint64>("first");
        QTest::addColumn<int>("numbers");
        QTest::newRow("from 0") << quint64{0} << 200'000; // over segments and new sieving primes
        for (const quint64 first : {1U, 2U, 3U, 4U, 13U, 14U, 65'535U, 65'536U})
            QTest::addRow("from %llu", first) << first << 100;
        QTest::newRow("next to 2^32") << (quint64{1} << 32) - 70'000 << 140'000;
        QTest::newRow("where it proves no more")
            << quint64{bignum::OddSieve::kProven - 70'000} << 140'000;
        QTest::newRow("next to 2^62") << (quint64{1} << 62) - 1000 << 2000;
    }
    void everyPrimeAndNothingElse()
    {
        QFETCH(const quint64, first);
        QFETCH(const int, numbers);
        bignum::PrimeStream primes(first, first);
        quint64 next = primes.next();
        for (quint64 n = first; n < first + static_cast<quint64>(numbers); ++n) {
            QCOMPARE(next == n, bignum::isPrime(n));
            if (next == n)
                next = primes.next();
        }
    }

    void counts()
    {
        for (const auto &[limit, count] : {std::pair{0, 0},
                                           {1, 0},
                                           {2, 1},
                                           {3, 2},
                                           {4, 2},
                                           {65'536, 6542},
                                           {65'537, 6543},
                                           {1'000'000, 78'498},
                                           {10'000'000, 664'579}})
            QCOMPARE(bignum::countPrimesTo(static_cast<quint64>(limit)),
                     static_cast<quint64>(count));
    }
};

QTEST_GUILESS_MAIN(TestOwnPrimes)
#include "tst_OwnPrimes.moc"
