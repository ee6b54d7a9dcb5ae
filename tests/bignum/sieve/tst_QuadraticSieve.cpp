// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/QuadraticSieve.h"

#include "../BignumCalls.h"

#include <algorithm>
#include <thread>

using namespace bignum;
using namespace bignum::sieve;
using namespace std::chrono_literals;

namespace {

std::string written(std::vector<mpz_class> primes)
{
    std::ranges::sort(primes, [](const auto &a, const auto &b) { return a < b; });
    std::string text;
    for (const mpz_class &prime : primes)
        text += (text.empty() ? "" : " ") + prime.get_str();
    return text;
}

mpz_class power(unsigned long base, unsigned long exponent)
{
    mpz_class result;
    mpz_ui_pow_ui(result.get_mpz_t(), base, exponent);
    return result;
}

mpz_class primeFrom(mpz_class n)
{
    mpz_nextprime(n.get_mpz_t(), n.get_mpz_t());
    return n;
}

SieveResult sieved(const mpz_class &n, unsigned threads = 2)
{
    const StopSignal stop{Deadline(60s)};
    return sieveFactors(n, stop, threads);
}

/// The factors in ascending order, where they multiply to n; "wrong" else.
std::string factorsOf(const mpz_class &n, const SieveResult &result)
{
    mpz_class product = 1;
    for (const mpz_class &factor : result.factors)
        product *= factor;
    return product == n ? written(result.factors) : "wrong";
}

} // namespace

class TestQuadraticSieve : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void splits_data()
    {
        QTest::addColumn<std::vector<mpz_class>>("primes");
        using Numbers = std::vector<mpz_class>;
        const auto row = [](const char *name, Numbers primes) { QTest::newRow(name) << primes; };
        Random random(41);
        row("round, 39 digits",
            {mpz_class("32384567"), mpz_class("3908722277528449221749609969027")});
        row("round, 43 digits",
            {mpz_class("14853224237640427"), mpz_class("67325449612875386921338313771")});
        row("close together", {primeFrom(power(10, 17)), primeFrom(primeFrom(power(10, 17)))});
        row("next to powers of ten", {primeFrom(power(10, 15)), primeFrom(power(10, 22))});
        row("next to powers of two", {primeFrom(power(2, 60)), primeFrom(power(2, 65))});
        row("unbalanced", {random.primeOfDigits(9), random.primeOfDigits(30)});
        row("three",
            {random.primeOfDigits(12), random.primeOfDigits(13), random.primeOfDigits(14)});
        row("four", {random.primeOfDigits(9), random.primeOfDigits(10), random.primeOfDigits(10),
                     random.primeOfDigits(11)});
        row("50 digits", {random.primeOfDigits(25), random.primeOfDigits(25)});
        // Of all multipliers up to 73 some share a divisor with this number.
        row("divisors of multipliers",
            {3, 5, 7, 11, 13, random.primeOfDigits(14), random.primeOfDigits(14)});
    }
    void splits()
    {
        QFETCH(const std::vector<mpz_class>, primes);
        mpz_class n = 1;
        for (const mpz_class &prime : primes)
            n *= prime;
        const SieveResult result = sieved(n);
        QVERIFY(result.outcome == SieveOutcome::Split);
        if (result.factors.size() == primes.size())
            QCOMPARE(factorsOf(n, result), written(primes));
        else // small factors are told one at a time
            QVERIFY(result.factors.size() > 1 && factorsOf(n, result) != "wrong");
    }

    void splitsNumbersOfAllSizes()
    {
        Random random(42);
        for (unsigned digits = 16; digits <= 46; ++digits) {
            const mpz_class p = random.primeOfDigits(digits / 2);
            const mpz_class q = random.primeOfDigits(digits - digits / 2);
            QVERIFY2(factorsOf(p * q, sieved(p * q)) == written({p, q}),
                     mpz_class(p * q).get_str().c_str());
        }
    }

    void threadsDoNotChangeTheFactors()
    {
        Random random(43);
        for (int i = 0; i < 5; ++i) {
            const mpz_class n = random.primeOfDigits(20) * random.primeOfDigits(21);
            const std::string factors = factorsOf(n, sieved(n, 1));
            for (const unsigned threads : {1U, 2U, 7U})
                QCOMPARE(factorsOf(n, sieved(n, threads)), factors);
        }
    }

    void aPrimeOfTheBaseIsSeen()
    {
        Random random(44);
        const mpz_class rest = random.primeOfDigits(18) * random.primeOfDigits(17);
        int seen = 0;
        for (const unsigned long prime : {3UL, 5UL, 7UL, 101UL, 257UL, 1009UL, 65537UL}) {
            const SieveResult result = sieved(rest * prime);
            QVERIFY(result.outcome == SieveOutcome::Split);
            QVERIFY(factorsOf(rest * prime, result) != "wrong");
            seen += result.counts.relations == 0 ? 1 : 0;
        }
        QVERIFY(seen >= 5);
    }

    void powersOfPrimesEnd()
    {
        // No difference of squares splits them: the sieve must give up by itself.
        Random random(45);
        for (const unsigned digits : {9U, 12U, 15U}) {
            const mpz_class prime = random.primeOfDigits(digits);
            const SieveResult result = sieved(prime * prime);
            QVERIFY(result.outcome == SieveOutcome::Failed ||
                    factorsOf(prime * prime, result) != "wrong");
        }
    }

    void tellsWhatItDid()
    {
        Random random(46);
        const SieveResult result = sieved(random.primeOfDigits(22) * random.primeOfDigits(22));
        QVERIFY(result.outcome == SieveOutcome::Split);
        QVERIFY(result.counts.base > 100 && result.counts.columns > 40);
        QVERIFY(result.counts.relations > result.counts.partials && result.counts.partials > 0);
        QVERIFY(result.counts.polynomials > 0 && result.times.sieving.count() > 0);
    }

    void stops()
    {
        Random random(47);
        const mpz_class n = random.primeOfDigits(35) * random.primeOfDigits(35);
        for (const auto &[time, byRequest] :
             {std::pair(0ms, true), {200ms, true}, {200ms, false}}) {
            StopSignal stop{Deadline(byRequest ? 60s : time)};
            const auto start = Deadline::Clock::now();
            std::thread other([&stop, after = time, asks = byRequest] {
                std::this_thread::sleep_for(after);
                if (asks)
                    stop.request();
            });
            const SieveResult result = sieveFactors(n, stop, 2);
            const auto took = Deadline::Clock::now() - start - time;
            other.join();
            QVERIFY(result.outcome == SieveOutcome::Stopped);
            QCOMPARE(factorsOf(n, result), n.get_str());
            // 50 ms where the machine has nothing else to do, and the making of the factor base.
            QVERIFY(took < 2s);
        }
    }
};

QTEST_APPLESS_MAIN(TestQuadraticSieve)
#include "tst_QuadraticSieve.moc"
