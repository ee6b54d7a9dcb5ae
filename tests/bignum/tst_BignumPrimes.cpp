// SPDX-License-Identifier: GPL-3.0-or-later
#include "BignumCalls.h"
#include "tests/Tabla.h"

#include <map>

namespace {

bool isPrimeByDivision(int n)
{
    for (int d = 2; d * d <= n; ++d)
        if (n % d == 0)
            return false;
    return n > 1;
}

/// A second opinion on larger numbers: further rounds of Miller-Rabin by GMP.
bool isPrimeByGmp(const mpz_class &n)
{
    return n > 1 && mpz_probab_prime_p(n.get_mpz_t(), 64) != 0;
}

bool isPrime(const mpz_class &n)
{
    return IsPrime(n.get_str().c_str()) == 1;
}

struct PrimeSum
{
    std::int64_t count = 0;
    std::uint64_t last = 0;
    std::int64_t stopAfter = -1;
    std::int64_t blocks = 0;
    bool ascending = true;
};

int32_t takeBlock(const std::uint64_t *primes, std::int64_t count, void *context)
{
    auto *sum = static_cast<PrimeSum *>(context);
    for (std::int64_t i = 0; i < count; ++i) {
        sum->ascending = sum->ascending && primes[i] > sum->last;
        sum->last = primes[i];
    }
    sum->count += count;
    ++sum->blocks;
    return sum->stopAfter < 0 || sum->count < sum->stopAfter ? 1 : 0;
}

} // namespace

class TestBignumPrimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void smallNumbersAgreeWithDivision()
    {
        for (int n = -10; n < 20000; ++n)
            QCOMPARE(isPrime(n), isPrimeByDivision(n));
    }

    void knownNumbers_data()
    {
        // Composites: the least that pass strong tests to the first prime bases, Carmichael's,
        // those that pass the Lucas half of the test alone, squares of Wieferich primes.
        filasDeTexto<QByteArray, QByteArray>(uR"(
0 | 0 || -2 | 0
strong: || 2047 | 0 || 1373653 | 0 || 25326001 | 0 || 3215031751 | 0 || 2152302898747 | 0
strong: || 3474749660383 | 0
strong: || 341550071728321 | 0 || 3825123056546413051 | 0 || 318665857834031151167461 | 0
strong: || 3317044064679887385961981 | 0
Carmichael: || 561 | 0 || 1729 | 0 || 294409 | 0 || 56052361 | 0 || 118901521 | 0
Carmichael: || 9746347772161 | 0
Carmichael: || 349407515342287435050603204719587201 | 0
Lucas: || 989 | 0 || 3239 | 0 || 5459 | 0 || 5777 | 0 || 10877 | 0 || 72389 | 0 || 100127 | 0
Lucas: || 113573 | 0
squares: || 1194649 | 0 || 12327121 | 0 || 340282366920938460843936948965011886881 | 0
about 2^64: || 18446744073709551557 | 1 || 18446744073709551629 | 1 || 18446744073709551615 | 0
powers of 2 and 1: || 18446744073709551617 | 0 || 340282366920938463463374607431768211457 | 0)"_s);
        otraFila<QByteArray, QByteArray>(u"two with sign and blanks"_s, "\t +2 \r\n"_ba, "1"_ba);
        for (const unsigned long p :
             {61UL, 89UL, 107UL, 127UL, 521UL, 607UL, 1279UL, 2203UL, 67UL, 101UL, 257UL, 1009UL}) {
            const bool composite = p == 67 || p == 101 || p == 257 || p == 1009;
            otraFila<QByteArray, QByteArray>(
                u"Mersenne %1"_s.arg(p),
                QByteArray::fromStdString(mpz_class((mpz_class(1) << p) - 1).get_str()),
                composite ? "0"_ba : "1"_ba);
        }
    }
    void knownNumbers()
    {
        const auto [number, prime] = estaFila<QByteArray, QByteArray>();
        QCOMPARE(QByteArray::number(IsPrime(number.constData())), prime);
    }

    void randomNumbersAgreeWithGmp()
    {
        Random random(1);
        for (unsigned long bits = 15; bits <= 200; ++bits) {
            for (int i = 0; i < 20; ++i) {
                mpz_class n = random.bits(bits);
                if (i % 2 != 0)
                    mpz_nextprime(n.get_mpz_t(), n.get_mpz_t());
                QVERIFY2(isPrime(n) == isPrimeByGmp(n), n.get_str().c_str());
            }
        }
    }

    void productsOfNearbyPrimesAreComposite()
    {
        // p(2p - 1) and p(3p - 2) pass far more tests to a random base than other composites.
        Random random(2);
        for (int i = 0; i < 20000; ++i) {
            const mpz_class p = random.bits(40);
            for (const unsigned long k : {2UL, 3UL}) {
                const mpz_class q = k * (p - 1) + 1;
                if (p > 1 && isPrimeByGmp(p) && isPrimeByGmp(q))
                    QVERIFY2(!isPrime(p * q), mpz_class(p * q).get_str().c_str());
            }
        }
    }

    void bits()
    {
        for (const auto &[number, bits] :
             std::map<QByteArray, int>{{"0", 0},
                                       {"1", 1},
                                       {"1023", 10},
                                       {"1024", 11},
                                       {"-1024", 11},
                                       {"18446744073709551615", 64},
                                       {"18446744073709551616", 65},
                                       {"1"_ba + QByteArray(24574, '0'), 81634},
                                       {"12a", 0}})
            QCOMPARE(NumBits(number.constData()), bits);
    }

    void nextPrimes_data()
    {
        filasDeTexto<QByteArray, QByteArray>(uR"(
-1000000000000000000000000 | 2 || 1 | 2 || 2 | 3 || 3 | 5
across gaps: || 492113 | 492227 || 1425172824437699411 | 1425172824437700887
to the last prime of a word: || 18446744073709551556 | 18446744073709551557
out of the word: || 18446744073709551557 | 18446744073709551629)"_s);
        otraFila<QByteArray, QByteArray>(u"beyond the bits of a search"_s,
                                         "-1" + QByteArray(4000, '0'), "2"_ba);
        const QByteArray googol = "1" + QByteArray(100, '0');
        otraFila<QByteArray, QByteArray>(u"googol"_s, googol, googol.chopped(3) + "267");
    }
    void nextPrimes()
    {
        const auto [number, expected] = estaFila<QByteArray, QByteArray>();
        const auto next = call(NextPrime, number.constData());
        QCOMPARE(QByteArray::fromStdString(next.value_or("failure")), expected);
    }

    void nextPrimeSkipsNone()
    {
        std::string n = "0";
        for (int expected = 2; expected < 3000; ++expected) {
            if (!isPrimeByDivision(expected))
                continue;
            n = call(NextPrime, n.c_str()).value_or("failure");
            QCOMPARE(n, std::to_string(expected));
        }
    }

    void nextPrimeOfLongNumbers()
    {
        Random random(3);
        for (unsigned long bits = 60; bits <= 600; bits += 5) {
            const mpz_class n = random.bits(bits);
            mpz_class expected;
            mpz_nextprime(expected.get_mpz_t(), n.get_mpz_t());
            QCOMPARE(call(NextPrime, n.get_str().c_str()).value_or("failure"), expected.get_str());
        }
        QVERIFY(!call(NextPrime, ("1" + std::string(3011, '0')).c_str()));
    }

    void randomPrimesHaveTheirBits()
    {
        for (const int bits : {2, 3, 4, 31, 32, 33, 63, 64, 65, 66, 127, 128, 129, 512, 1024}) {
            const std::string prime = call(RndPrimo, bits).value_or("failure");
            QCOMPARE(NumBits(prime.c_str()), bits);
            QVERIFY(isPrimeByGmp(mpz_class(prime)));
        }
        for (const int bits : {-5, 0, 1, 10001, 2000000000})
            QVERIFY(!call(RndPrimo, bits));
    }

    void randomPrimesReachAllPrimes()
    {
        // Of seven primes each has 1429 of 10 000 draws, give or take 35: 15 % more is six times
        // that away. Walking on from a composite draw to the next prime would give 37 some 1875.
        constexpr int draws = 10'000;
        for (const auto &[bits, primes] : {std::pair(2, 2), {3, 2}, {6, 7}}) {
            std::map<std::string, int> drawn;
            for (int i = 0; i < draws; ++i)
                ++drawn[call(RndPrimo, bits).value_or("failure")];
            QCOMPARE(static_cast<int>(drawn.size()), primes);
            for (const auto &[prime, times] : drawn)
                QVERIFY2(100 * times < 115 * draws / primes, prime.c_str());
        }
    }

    void countOfPrimes()
    {
        for (const auto &[limit, count] : std::map<int, int>{{-7, 0},
                                                             {0, 0},
                                                             {1, 0},
                                                             {2, 1},
                                                             {97, 25},
                                                             {1000000, 78498},
                                                             {10000000, 664579},
                                                             {2147483647, 105097565}})
            QCOMPARE(ListPrimes(limit), count);
    }

    void streamOfPrimes()
    {
        PrimeSum all;
        QCOMPARE(PrimesBetween(0, 1299709, takeBlock, &all), 1);
        QCOMPARE(all.count, 100000);
        QCOMPARE(all.last, 1299709U);
        QVERIFY(all.ascending);

        PrimeSum stopped;
        stopped.stopAfter = 1;
        QCOMPARE(PrimesBetween(0, INT64_MAX, takeBlock, &stopped), 0);
        QVERIFY(stopped.count > 0 && stopped.count < 1000000);

        PrimeSum none;
        QCOMPARE(PrimesBetween(0, 1, takeBlock, &none), 1);
        QCOMPARE(none.count, 0);
        QCOMPARE(PrimesBetween(0, 100, nullptr, nullptr), 0);
    }

    void listsOfPrimesInParts()
    {
        // 84 017 is the prime number 8192, which fills a block: nothing comes after it.
        PrimeSum full;
        QCOMPARE(PrimesBetween(0, 84'017, takeBlock, &full), 1);
        QCOMPARE(full.blocks, full.count / 8192);
        // A list that is ended in its last block is ended.
        PrimeSum ended;
        ended.stopAfter = 1;
        QCOMPARE(PrimesBetween(0, 10, takeBlock, &ended), 0);
        QCOMPARE(ended.count, 4);
        // A list that is asked for in two parts.
        PrimeSum parts;
        QCOMPARE(PrimesBetween(INT64_MIN, 6, takeBlock, &parts), 1);
        QCOMPARE(PrimesBetween(7, 29, takeBlock, &parts), 1);
        QCOMPARE(PrimesBetween(29, 7, takeBlock, &parts), 1);
        QCOMPARE(parts.count, 10);
        QCOMPARE(parts.last, 29U);
    }
};

QTEST_APPLESS_MAIN(TestBignumPrimes)
#include "tst_BignumPrimes.moc"
