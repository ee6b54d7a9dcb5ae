// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/QuadraticSieve.h"

#include "bignum/primes/Primality.h"

#include <QTest>
#include <algorithm>
#include <thread>

using namespace bignum;
using namespace bignum::sieve;
using namespace std::chrono_literals;

namespace {

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

/// Random primes that are the same in every run.
class Primes
{
public:
    explicit Primes(unsigned long seed) : m_random(gmp_randinit_default) { m_random.seed(seed); }
    mpz_class ofDigits(unsigned digits)
    {
        const mpz_class low = power(10, digits - 1);
        return primeFrom(low + m_random.get_z_range(8 * low));
    }

private:
    gmp_randclass m_random;
};

SieveResult sieved(const mpz_class &n, unsigned threads = 2)
{
    const StopSignal stop{Deadline(60s)};
    return sieveFactors(n, stop, threads);
}

/// The factors in ascending order, where they multiply to n; "wrong" else.
std::string factorsOf(const mpz_class &n, SieveResult result)
{
    std::ranges::sort(result.factors, [](const auto &a, const auto &b) { return a < b; });
    mpz_class product = 1;
    std::string text;
    for (const mpz_class &factor : result.factors) {
        product *= factor;
        text += (text.empty() ? "" : " ") + factor.get_str();
    }
    return product == n ? text : "wrong";
}

std::string written(std::vector<mpz_class> primes)
{
    std::ranges::sort(primes, [](const auto &a, const auto &b) { return a < b; });
    std::string text;
    for (const mpz_class &prime : primes)
        text += (text.empty() ? "" : " ") + prime.get_str();
    return text;
}

} // namespace

class TestQuadraticSieve : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void splits_data();
    void splits();
    void splitsNumbersOfAllSizes();
    void threadsDoNotChangeTheFactors();
    void aPrimeOfTheBaseIsSeen();
    void powersOfPrimesEnd();
    void tellsWhatItDid();
    void stops_data();
    void stops();
};

void TestQuadraticSieve::splits_data()
{
    QTest::addColumn<std::vector<mpz_class>>("primes");
    const auto row = [](const char *name, std::vector<mpz_class> primes) {
        QTest::newRow(name) << std::move(primes);
    };
    Primes random(41);
    row("round, 39 digits", {mpz_class("32384567"), mpz_class("3908722277528449221749609969027")});
    row("round, 43 digits",
        {mpz_class("14853224237640427"), mpz_class("67325449612875386921338313771")});
    row("close together", {primeFrom(power(10, 17)), primeFrom(primeFrom(power(10, 17)))});
    row("next to powers of ten", {primeFrom(power(10, 15)), primeFrom(power(10, 22))});
    row("next to powers of two", {primeFrom(power(2, 60)), primeFrom(power(2, 65))});
    row("unbalanced", {random.ofDigits(9), random.ofDigits(30)});
    row("three", {random.ofDigits(12), random.ofDigits(13), random.ofDigits(14)});
    row("four",
        {random.ofDigits(9), random.ofDigits(10), random.ofDigits(10), random.ofDigits(11)});
    row("50 digits", {random.ofDigits(25), random.ofDigits(25)});
    // Of all multipliers up to 73 some share a divisor with this number.
    row("divisors of multipliers", {3, 5, 7, 11, 13, random.ofDigits(14), random.ofDigits(14)});
}

void TestQuadraticSieve::splits()
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

void TestQuadraticSieve::splitsNumbersOfAllSizes()
{
    Primes random(42);
    for (unsigned digits = 16; digits <= 46; ++digits) {
        const mpz_class p = random.ofDigits(digits / 2);
        const mpz_class q = random.ofDigits(digits - digits / 2);
        QVERIFY2(factorsOf(p * q, sieved(p * q)) == written({p, q}),
                 mpz_class(p * q).get_str().c_str());
    }
}

void TestQuadraticSieve::threadsDoNotChangeTheFactors()
{
    Primes random(43);
    for (int i = 0; i < 5; ++i) {
        const mpz_class n = random.ofDigits(20) * random.ofDigits(21);
        const std::string factors = factorsOf(n, sieved(n, 1));
        for (const unsigned threads : {1U, 2U, 7U})
            QCOMPARE(factorsOf(n, sieved(n, threads)), factors);
    }
}

void TestQuadraticSieve::aPrimeOfTheBaseIsSeen()
{
    Primes random(44);
    const mpz_class rest = random.ofDigits(18) * random.ofDigits(17);
    int seen = 0;
    for (const unsigned long prime : {3UL, 5UL, 7UL, 101UL, 257UL, 1009UL, 65537UL}) {
        const SieveResult result = sieved(rest * prime);
        QVERIFY(result.outcome == SieveOutcome::Split);
        QVERIFY(factorsOf(rest * prime, result) != "wrong");
        seen += result.counts.relations == 0 ? 1 : 0;
    }
    QVERIFY(seen >= 5);
}

void TestQuadraticSieve::powersOfPrimesEnd()
{
    // No difference of squares splits them: the sieve must give up by itself.
    Primes random(45);
    for (const unsigned digits : {9U, 12U, 15U}) {
        const mpz_class prime = random.ofDigits(digits);
        const SieveResult result = sieved(prime * prime);
        QVERIFY(result.outcome == SieveOutcome::Failed ||
                factorsOf(prime * prime, result) != "wrong");
    }
}

void TestQuadraticSieve::tellsWhatItDid()
{
    Primes random(46);
    const SieveResult result = sieved(random.ofDigits(22) * random.ofDigits(22));
    QVERIFY(result.outcome == SieveOutcome::Split);
    QVERIFY(result.counts.base > 100 && result.counts.columns > 40);
    QVERIFY(result.counts.relations > result.counts.partials && result.counts.partials > 0);
    QVERIFY(result.counts.polynomials > 0 && result.times.sieving.count() > 0);
}

void TestQuadraticSieve::stops_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<bool>("byRequest");
    QTest::newRow("before it starts") << 0 << true;
    QTest::newRow("while it sieves") << 200 << true;
    QTest::newRow("by the deadline") << 200 << false;
}

void TestQuadraticSieve::stops()
{
    QFETCH(const int, milliseconds);
    QFETCH(const bool, byRequest);
    Primes random(47);
    const mpz_class n = random.ofDigits(35) * random.ofDigits(35);
    const std::chrono::milliseconds time(milliseconds);
    StopSignal stop{Deadline(byRequest ? 60s : time)};
    const auto start = Deadline::Clock::now();
    std::thread other([&] {
        std::this_thread::sleep_for(time);
        if (byRequest)
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

QTEST_APPLESS_MAIN(TestQuadraticSieve)

#include "tst_QuadraticSieve.moc"
