// SPDX-License-Identifier: GPL-3.0-or-later
#include "BignumCalls.h"
#include "tests/Tabla.h"

#include <QProcess>
#include <chrono>
#include <thread>

namespace {

/// "2^3 5 7^2", with "?" after a composite that was left.
std::string written(const Factored &result)
{
    std::string text;
    for (const auto &[base, exponent] : result.entries) {
        text += (text.empty() ? "" : " ") + base + (exponent == "1" ? "" : "^" + exponent);
        if (IsPrime(base.c_str()) == 0)
            text += "?";
    }
    return text;
}

/// Whether the entries are ascending primes whose powers give |n|.
bool isFactorization(const Factored &result, const mpz_class &n)
{
    mpz_class product = 1;
    mpz_class last = 1;
    for (const auto &[base, exponent] : result.entries) {
        const mpz_class prime(base);
        if (IsPrime(base.c_str()) == 0 || prime <= last)
            return false;
        mpz_class power;
        mpz_pow_ui(power.get_mpz_t(), prime.get_mpz_t(), std::stoul(exponent));
        product *= power;
        last = prime;
    }
    return result.flag == 1 && result.intact && product == abs(n);
}

bool factors(const mpz_class &n)
{
    return isFactorization(factored(n.get_str()), n);
}

/// "2^3 division, 11 rho", with "?" after a composite.
struct Taken
{
    std::string text;
    std::size_t most = 1000; ///< factors to take
    std::size_t count = 0;
    bool countsFit = true; ///< what a method does not count is 0, and what it counts is not
};

int32_t take(const BignumFactor *factor, void *context)
{
    static const std::vector<std::string> methods{"itself", "division", "rho",
                                                  "curve",  "sieve",    "root"};
    Taken &taken = *static_cast<Taken *>(context);
    taken.text += (taken.text.empty() ? "" : ", ") + std::string(factor->base) +
                  (factor->exponent == 1 ? "" : "^" + std::to_string(factor->exponent)) +
                  (factor->isPrime == 0 ? "? " : " ") +
                  methods.at(static_cast<std::size_t>(factor->method));
    const bool bySieve = factor->method == BIGNUM_SIEVE;
    const bool byCurve = factor->method == BIGNUM_CURVE;
    taken.countsFit = taken.countsFit && (factor->relations > 0) == bySieve &&
                      (factor->columns > 0) == bySieve && (factor->curves > 0) == byCurve &&
                      (factor->curveBound > 0) == byCurve &&
                      factor->seconds >= factor->methodSeconds;
    return ++taken.count < taken.most ? 1 : 0;
}

/// A number of so many digits that nothing splits within the effort: its two factors are primes of
/// half as many digits each, or nearly.
mpz_class outOfReach(unsigned digits)
{
    Random random(77);
    return random.primeOfDigits(digits / 2) * random.primeOfDigits(digits - digits / 2);
}

} // namespace

class TestBignumFactors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void known_data()
    {
        // Among them the squares of the least prime above the trial divisors and of the largest
        // of 32 bits, 2^67 - 1, 2^89 - 1, 2^256 + 1 and forty ones.
        filasDeTexto<QByteArray, QByteArray>(uR"(
0 | || 1 | || -1 | || 2 | 2 || -360 | 2^3 3^2 5 || 65536 | 2^16
4295098369 | 65537^2 || 18446744030759878681 | 4294967291^2
18446744073709551615 | 3 5 17 257 641 65537 6700417
18446744073709551617 | 274177 67280421310721
126582278481012658227848101265822806309 | 32384567 3908722277528449221749609969027
1000000000000000000000000000000000000000420217 | 14853224237640427 67325449612875386921338313771
340282366920938463463374607431768211457 | 59649589127497217 5704689200685129054721
618970019642690137449562111 | 618970019642690137449562111
147573952589676412927 | 193707721 761838257287
1111111111111111111111111111111111111111 | 11 41 73 101 137 271 3541 9091 27961 1676321 5964848081
)"_s);
        otraFila<QByteArray, QByteArray>(
            u"2^256 + 1"_s,
            "115792089237316195423570985008687907853269984665640564039457584007913129639937"_ba,
            "1238926361552897 93461639715357977769163558199606896584051237541638188580280321"_ba);
    }
    void known()
    {
        const auto [number, factors] = estaFila<QByteArray, QByteArray>();
        const Factored result = factored(number.toStdString());
        QCOMPARE(result.flag, 1);
        QVERIFY(result.intact);
        QCOMPARE(QByteArray::fromStdString(written(result)), factors);
    }

    void smallNumbers()
    {
        for (int n = 2; n < 3000; ++n)
            QVERIFY2(factors(n), std::to_string(n).c_str());
    }

    void randomNumbers()
    {
        Random random(21);
        for (unsigned long bits = 20; bits <= 130; ++bits) {
            for (int i = 0; i < 4; ++i) {
                const mpz_class n = random.bits(bits) + 1;
                QVERIFY2(factors(n), n.get_str().c_str());
            }
        }
    }

    void productsOfTwoPrimes()
    {
        // Two equal halves are the worst case of every method.
        Random random(22);
        for (unsigned digits = 3; digits <= 20; ++digits) {
            const mpz_class p = random.primeOfDigits(digits);
            const mpz_class q = random.primeOfDigits(digits);
            QVERIFY2(factors(p * q), mpz_class(p * q).get_str().c_str());
            QVERIFY2(factors(p * p), p.get_str().c_str());
            if (digits <= 13)
                QVERIFY2(factors(p * p * q), mpz_class(p * p * q).get_str().c_str());
        }
    }

    void powers()
    {
        Random random(23);
        for (unsigned long exponent : {2UL, 3UL, 4UL, 5UL, 6UL, 7UL, 12UL, 30UL}) {
            for (const unsigned digits : {5U, 6U, 9U, 12U, 20U, 25U}) {
                mpz_class power;
                const mpz_class prime = random.primeOfDigits(digits);
                mpz_pow_ui(power.get_mpz_t(), prime.get_mpz_t(), exponent);
                QCOMPARE(written(factored(power.get_str())),
                         prime.get_str() + "^" + std::to_string(exponent));
                QVERIFY(factors(power * 12));
            }
        }
    }

    void buffersThatAreTooFew()
    {
        QCOMPARE(factored("30", 3).entries.size(), std::size_t{3});
        const Factored tooFew = factored("30", 2);
        QCOMPARE(tooFew.flag, 0);
        QVERIFY(tooFew.entries.empty() && tooFew.intact);
        QCOMPARE(Factors("1", nullptr, nullptr, 0), 1);
        QCOMPARE(Factors("2", nullptr, nullptr, 0), 0);
        QCOMPARE(Factors("2", nullptr, nullptr, 5), 0);
        QCOMPARE(factored("2", 0).flag, 0);

        NumberBuffer base;
        char *const bases[] = {base.data(), nullptr};
        char *const missing[] = {nullptr, nullptr};
        QCOMPARE(Factors("7", bases, missing, 2), 0);
        QCOMPARE(base.text(), std::string());
        for (const char *text : {"", "x", "12 34", "1/2"}) {
            const Factored noNumber = factored(text);
            QVERIFY2(noNumber.flag == 0 && noNumber.entries.empty(), text);
        }
    }

    void longNumbers()
    {
        // Longer than a buffer as a number, but not in its factors.
        const std::string round = "1" + std::string(9000, '0');
        QCOMPARE(written(factored(round)), std::string("2^9000 5^9000"));
        // A composite of 8192 digits without small factors does not fit its buffer.
        mpz_class power;
        mpz_pow_ui(power.get_mpz_t(), mpz_class(1000003).get_mpz_t(), 1500);
        const Factored tooLong = factored(power.get_str());
        QCOMPARE(tooLong.flag, 0);
        QVERIFY(tooLong.entries.empty() && tooLong.intact);
    }

    void eulersFunction()
    {
        for (int n = 1; n < 300; ++n) {
            int units = 0;
            for (int a = 1; a <= n; ++a)
                units += gcd(mpz_class(a), mpz_class(n)) == 1 ? 1 : 0;
            QCOMPARE(call(EulerFi, std::to_string(n).c_str()).value_or("failure"),
                     std::to_string(units));
        }
        QCOMPARE(call(EulerFi, "1000000007").value_or(""), std::string("1000000006"));
        QCOMPARE(call(EulerFi, "18446744073709551616").value_or(""),
                 std::string("9223372036854775808"));
        for (const char *refused : {"0", "-5", ""})
            QVERIFY2(!call(EulerFi, refused), refused);
    }

    void twoThreadsAtOnce()
    {
        // Both need the curves and the sieve, from threads that come and go.
        std::vector<std::thread> threads;
        std::vector<int> failures(4, 0);
        for (unsigned t = 0; t < failures.size(); ++t) {
            threads.emplace_back([&failures, t] {
                Random random(100 + t);
                for (unsigned digits = 10; digits <= 19; ++digits) {
                    const mpz_class p = random.primeOfDigits(digits);
                    failures[t] += factors(p * random.primeOfDigits(digits)) ? 0 : 1;
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(failures, std::vector<int>(4, 0));
    }

    void asFound_data()
    {
        filasDeTexto<QByteArray, QByteArray>(uR"(
0 | || 1 | || -7 | 7 itself || 1000000007 | 1000000007 itself
360 | 2^3 division, 3^2 division, 5 division
6000000042 | 2 division, 3 division, 1000000007 division
1000000016000000063 | 1000000009 rho, 1000000007 rho)"_s);
        otraFila<QByteArray, QByteArray>(
            u"a square"_s, "1000000000000000000000000000114000000000000000000000000003249"_ba,
            "1000000000000000000000000000057^2 root"_ba);
    }
    void asFound()
    {
        const auto [number, found] = estaFila<QByteArray, QByteArray>();
        Taken taken;
        QCOMPARE(FactorsAsFound(number.constData(), take, &taken), BIGNUM_ALL_PRIMES);
        QCOMPARE(QByteArray::fromStdString(taken.text), found);
        QVERIFY(taken.countsFit);
    }

    void theTakerMayEndTheSearch()
    {
        Taken taken{.text = "", .most = 2};
        QCOMPARE(FactorsAsFound("30030", take, &taken), BIGNUM_FACTORS_STOPPED);
        for (const char *text : {"", "x", "1/2", "-", static_cast<const char *>(nullptr)})
            QCOMPARE(FactorsAsFound(text, take, &taken), BIGNUM_NO_NUMBER);
        QCOMPARE(FactorsAsFound("6", nullptr, &taken), BIGNUM_FACTORS_FAILED);
        QCOMPARE(taken.text, std::string("2 division, 3 division"));
    }

    void whatIsOutOfReachComesLast()
    {
        // Too long to be tested for primality, and longer than any buffer of Factors.
        const std::string repeated = "7" + std::string(8999, '7');
        Taken taken;
        QCOMPARE(FactorsAsFound(repeated.c_str(), take, &taken), BIGNUM_COMPOSITE_LEFT);
        QVERIFY(taken.text.starts_with("3^2 division, 7^2 division, 11 division, "));
        QVERIFY(taken.text.ends_with("? division"));
        QCOMPARE(factored(repeated).flag, 0);
    }

    void endBignumStops()
    {
        using Clock = std::chrono::steady_clock;
        for (const unsigned digits : {79U, 110U}) { // in the sieve, in the curves
            const mpz_class hard = outOfReach(digits);
            const mpz_class number = 12 * hard;
            Factored result;
            Clock::time_point ended;
            std::thread worker([&] {
                result = factored(number.get_str());
                ended = Clock::now();
            });
            std::this_thread::sleep_for(std::chrono::milliseconds(700));
            const auto asked = Clock::now();
            QCOMPARE(EndBignum(), 1);
            worker.join();
            QCOMPARE(result.flag, 0);
            QCOMPARE(written(result), "2^2 3 " + hard.get_str() + "?");
            // 50 ms on a machine that is idle.
            QVERIFY2(ended - asked < std::chrono::milliseconds(1000), "the stop took too long");
            QVERIFY(factors(mpz_class("1000000016000000063"))); // the library goes on
        }
    }

    void processMayEndMeanwhile()
    {
        // A child of this test that leaves while its threads are in the sieve.
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--leave")});
        QVERIFY(child.waitForFinished(20000));
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 0);
    }
};

/// With an argument of its own the test is the process that ends while it factors.
int main(int argc, char **argv)
{
    if (argc == 2 && std::string_view(argv[1]) == "--leave") {
        const std::string number = outOfReach(79).get_str();
        std::thread([number] { factored(number); }).detach();
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
        return 0;
    }
    QCoreApplication application(argc, argv);
    TestBignumFactors test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_BignumFactors.moc"
