// SPDX-License-Identifier: GPL-3.0-or-later
#include "BignumCalls.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char *kFailure = "failure";

std::string modulo(const std::string &a, const std::string &m)
{
    return call(BMod, a.c_str(), m.c_str()).value_or(kFailure);
}

std::string power(const std::string &base, const std::string &exponent, const std::string &modulus)
{
    return call(PowMod, base.c_str(), exponent.c_str(), modulus.c_str()).value_or(kFailure);
}

std::string inverse(const std::string &a, const std::string &n)
{
    return call(InvMod, a.c_str(), n.c_str()).value_or(kFailure);
}

struct Bezout
{
    int flag;
    std::string d, x, y;
};

Bezout bezout(const std::string &a, const std::string &b)
{
    NumberBuffer d;
    NumberBuffer x;
    NumberBuffer y;
    const int flag = BExMcd(a.c_str(), b.c_str(), d.data(), x.data(), y.data());
    return {d.isIntact() && x.isIntact() && y.isIntact() ? flag : -1, d.text(), x.text(), y.text()};
}

/// Solves congruences written as "2 3, 3 5": remainder and modulus.
std::string solve(const QByteArray &system)
{
    std::vector<QByteArray> texts;
    for (const QByteArray &congruence : system.split(','))
        for (const QByteArray &text : congruence.simplified().split(' '))
            texts.push_back(text);
    std::vector<const char *> remainders;
    std::vector<const char *> moduli;
    for (std::size_t i = 0; i + 1 < texts.size(); i += 2) {
        remainders.push_back(texts[i].constData());
        moduli.push_back(texts[i + 1].constData());
    }
    return call(CRT, remainders.data(), moduli.data(), static_cast<int32_t>(moduli.size()))
        .value_or(kFailure);
}

} // namespace

class TestBignumModular : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operations_data()
    {
        QTest::addColumn<std::string>("actual");
        QTest::addColumn<std::string>("expected");
        const auto row = [](const char *name, const std::string &actual,
                            const std::string &expected) {
            QTest::newRow(name) << actual << expected;
        };
        row("mod of a negative", modulo("-7", "3"), "2");
        row("mod of a negative modulus", modulo("7", "-3"), "1");
        row("mod of two negatives", modulo("-7", "-3"), "2");
        row("mod of a multiple", modulo("-9", "3"), "0");
        row("mod 1", modulo("12345678901234567890123", "1"), "0");
        row("mod 0", modulo("5", "0"), kFailure);
        row("mod of no number", modulo("x", "3"), kFailure);
        row("mod by no number", modulo("5", "3x"), kFailure);

        row("power", power("3", "200", "13"), "9");
        row("power of a negative base", power("-2", "3", "7"), "6");
        row("power with a negative modulus", power("2", "3", "-7"), "1");
        row("power 0^0", power("0", "0", "7"), "1");
        row("power modulo 1", power("5", "0", "1"), "0");
        row("power modulo 0", power("5", "2", "0"), kFailure);
        row("power with a negative exponent", power("3", "-2", "7"), "4");
        row("power without inverse", power("6", "-1", "9"), kFailure);
        row("power with no number", power("2", "", "9"), kFailure);
        row("power, long modulus", power("2", "10", "1" + std::string(9000, '0')), "1024");
        row("power, long modulus and exponent",
            power("2", "1" + std::string(2000, '0'), "1" + std::string(9000, '0')), kFailure);

        row("inverse", inverse("3", "7"), "5");
        row("inverse of a negative", inverse("-3", "7"), "2");
        row("inverse with a negative modulus", inverse("3", "-7"), "5");
        row("inverse modulo 1", inverse("5", "1"), "0");
        row("inverse of 0 modulo 1", inverse("0", "-1"), "0");
        row("inverse modulo 0", inverse("1", "0"), kFailure);
        row("no inverse", inverse("6", "9"), kFailure);
        row("inverse of 0", inverse("0", "9"), kFailure);

        row("gcd", call(BMcd, "-12", "18").value_or(kFailure), "6");
        row("gcd with 0", call(BMcd, "0", "-18").value_or(kFailure), "18");
        row("gcd of zeros", call(BMcd, "0", "0").value_or(kFailure), "0");
        row("gcd of no number", call(BMcd, "0", "1/2").value_or(kFailure), kFailure);
    }
    void operations()
    {
        QFETCH(std::string, actual);
        QTEST(actual, "expected");
    }

    void bezoutEdges_data()
    {
        QTest::addColumn<std::string>("a");
        QTest::addColumn<std::string>("b");
        QTest::addColumn<std::string>("result"); ///< d x y
        const auto row = [](const char *a, const char *b, const char *result) {
            QTest::addRow("%s, %s", a, b)
                << std::string(a) << std::string(b) << std::string(result);
        };
        row("240", "46", "2 -9 47");
        row("17", "3120", "1 -367 2");
        row("0", "0", "0 0 0");
        row("0", "5", "5 0 1");
        row("-5", "0", "5 -1 0");
        row("6", "6", "6 0 1");
        row("1", "1", "1 0 1");
        row("12", "4", "4 0 1");
        row("7", "-1", "1 0 -1");
    }
    void bezoutEdges()
    {
        QFETCH(std::string, a);
        QFETCH(std::string, b);
        const Bezout result = bezout(a, b);
        QCOMPARE(result.flag, 1);
        QTEST(result.d + " " + result.x + " " + result.y, "result");
    }

    void bezoutHoldsForRandomNumbers()
    {
        Random random(11);
        for (int i = 0; i < 2000; ++i) {
            const mpz_class common = random.bits(40) + 1;
            const mpz_class a = common * random.anySize(400);
            const mpz_class b = common * random.anySize(400);
            const Bezout result = bezout(a.get_str(), b.get_str());
            QCOMPARE(result.flag, 1);
            const mpz_class d(result.d);
            const mpz_class x(result.x);
            const mpz_class y(result.y);
            QCOMPARE(d, gcd(a, b));
            QCOMPARE(mpz_class(a * x + b * y), d);
            if (a != 0 && b != 0 && a % b != 0 && b % a != 0)
                QVERIFY(2 * d * abs(x) <= abs(b) && 2 * d * abs(y) <= abs(a));
        }
    }

    void remaindersAndInversesOfRandomNumbers()
    {
        Random random(12);
        for (int i = 0; i < 2000; ++i) {
            const mpz_class a = random.anySize(1000);
            const mpz_class m = random.anySize(300);
            const std::string inverted = inverse(a.get_str(), m.get_str());
            QCOMPARE(inverted != kFailure, m != 0 && gcd(a, m) == 1);
            if (m == 0)
                continue;
            const mpz_class r(modulo(a.get_str(), m.get_str()));
            QVERIFY(r >= 0 && r < abs(m) && (a - r) % m == 0);
            if (inverted != kFailure) {
                const mpz_class x(inverted);
                QVERIFY(x >= 0 && x < abs(m) && (a * x - 1) % m == 0);
            }
        }
    }

    void powersOfRandomNumbers()
    {
        // base^(e + f) = base^e base^f, and Fermat's theorem, say more than a second computation.
        Random random(14);
        const mpz_class prime = (mpz_class(1) << 521) - 1;
        for (int i = 0; i < 300; ++i) {
            const mpz_class base = random.anySize(600);
            const mpz_class modulus = random.anySize(300) + 1;
            const mpz_class e = random.bits(100);
            const mpz_class f = random.bits(100);
            if (modulus == 0)
                continue;
            const auto raised = [&](const mpz_class &exponent) {
                return mpz_class(power(base.get_str(), exponent.get_str(), modulus.get_str()));
            };
            QCOMPARE(raised(e + f).get_str(),
                     modulo(mpz_class(raised(e) * raised(f)).get_str(), modulus.get_str()));
            QCOMPARE(power(base.get_str(), prime.get_str(), prime.get_str()),
                     modulo(base.get_str(), prime.get_str()));
        }
    }

    void congruences_data()
    {
        QTest::addColumn<QByteArray>("system");
        QTest::addColumn<std::string>("solution");
        const auto row = [](const char *name, const char *system, const char *solution) {
            QTest::newRow(name) << QByteArray(system) << std::string(solution);
        };
        row("Sun Zi", "2 3, 3 5, 2 7", "23");
        row("one alone", "17 5", "2");
        row("negative remainder", "-1 3, -1 5", "14");
        row("negative modulus", "2 -3, 3 5", "8");
        row("not coprime, compatible", "3 4, 5 6", "11");
        row("the same twice", "3 4, 7 4", "3");
        row("not coprime, contradictory", "3 4, 4 6", kFailure);
        row("modulus one", "5 1, 3 4", "3");
        row("modulus zero", "5 0, 3 4", kFailure);
        row("no number", "5 3, a 4", kFailure);
        row("none", "", kFailure);
    }
    void congruences()
    {
        QFETCH(QByteArray, system);
        QTEST(solve(system), "solution");
    }

    void congruencesOfRandomNumbers()
    {
        Random random(15);
        for (int i = 0; i < 300; ++i) {
            // Built from a solution, so that moduli with common factors do not contradict each
            // other.
            const mpz_class secret = random.anySize(500);
            mpz_class product = 1;
            std::string system;
            std::vector<mpz_class> moduli;
            for (int k = 0; k < 8; ++k) {
                moduli.emplace_back(random.bits(60) + 2);
                const mpz_class remainder = secret % moduli.back() + moduli.back() * random.bits(3);
                system += remainder.get_str() + " " + moduli.back().get_str() + ",";
                product = lcm(product, moduli.back());
            }
            system.pop_back();
            const mpz_class x(solve(QByteArray::fromStdString(system)));
            QVERIFY(x >= 0 && x < product);
            for (const mpz_class &modulus : moduli)
                QVERIFY((x - secret) % modulus == 0);
        }
    }

    /// Against the function of the expressions, which goes another way.
    void fibonacciNumbers()
    {
        Buffer<24576> out, expected;
        BignumCost cost{};
        const auto both = {BIGNUM_ITERATION, BIGNUM_DOUBLING};
        for (const int n :
             {0, 1, 2, 3, 4, 7, 8, 31, 32, 33, 93, 94, 255, 256, 4095, 117'591, 117'592}) {
            QCOMPARE(ZEval(("fib(" + std::to_string(n) + ")").c_str(), expected.data()), 1);
            for (const int method : both) {
                QCOMPARE(Fibonacci(method, n, 2, out.data(), &cost), 1);
                QCOMPARE(out.text(), expected.text());
                QVERIFY(out.isIntact() && cost.nanoseconds >= 0);
            }
        }
        // 20 is 10100 in binary: five steps, two of them with one addition more.
        QCOMPARE(Fibonacci(BIGNUM_DOUBLING, 20, 3, out.data(), &cost), 1);
        QCOMPARE(std::pair(cost.additions, cost.products), std::pair(int64_t{17}, int64_t{15}));
        QCOMPARE(Fibonacci(BIGNUM_ITERATION, 20, 3, out.data(), &cost), 1);
        QCOMPARE(std::pair(cost.additions, cost.products), std::pair(int64_t{19}, int64_t{0}));
        for (const auto &[method, n, turns] :
             {std::tuple(0, -1, 1), {1, 117'593, 1}, {0, 5, 0}, {2, 5, 1}}) {
            QCOMPARE(Fibonacci(method, n, turns, out.data(), &cost), 0);
            QVERIFY(out.text().empty() && cost.additions == 0);
        }
        QCOMPARE(Fibonacci(0, 5, 1, out.data(), nullptr), 0);
        QCOMPARE(Fibonacci(0, 5, 1, nullptr, &cost), 0);
    }

    void bases_data()
    {
        QTest::addColumn<int>("base");
        QTest::addColumn<QByteArray>("number");
        QTest::addColumn<std::string>("text");
        QTest::newRow("binary") << 2 << "10"_ba << std::string("1010");
        QTest::newRow("hexadecimal") << 16 << "255"_ba << std::string("ff");
        QTest::newRow("base 36") << 36 << "-1295"_ba << std::string("-zz");
        QTest::newRow("zero") << 7 << "0"_ba << std::string("0");
        QTest::newRow("decimal cleans up") << 10 << " +0042 "_ba << std::string("42");
        QTest::newRow("base 1") << 1 << "5"_ba << std::string(kFailure);
        QTest::newRow("base 37") << 37 << "5"_ba << std::string(kFailure);
        QTest::newRow("negative base") << -16 << "5"_ba << std::string(kFailure);
        QTest::newRow("no number") << 2 << "five"_ba << std::string(kFailure);
        QTest::newRow("does not fit")
            << 2 << "1"_ba + QByteArray(3000, '0') << std::string(kFailure);
    }
    void bases()
    {
        QFETCH(int, base);
        QFETCH(QByteArray, number);
        QTEST(call(ToBasis, base, number.constData()).value_or(kFailure), "text");
    }

    void comparisons_data()
    {
        QTest::addColumn<QByteArray>("a");
        QTest::addColumn<QByteArray>("b");
        QTest::addColumn<int>("result");
        const auto row = [](const char *name, const QByteArray &a, const QByteArray &b,
                            int result) { QTest::newRow(name) << a << b << result; };
        const QByteArray long1 = "1"_ba + QByteArray(20000, '0');
        row("b larger", "2", "10", 2);
        row("a larger", "10", "9", 1);
        row("equal", "10", " +010", 0);
        row("negative", "-10", "-9", 2);
        row("rationals", "1/3", "1/2", 2);
        row("equal rationals", "2/4", "1/2", 0);
        row("rational and integer", "7/2", "3", 1);
        row("empty is zero", "", "1", 2);
        row("blank is zero", "0", "  ", 0);
        row("long", long1, long1 + "0", 2);
        row("no number", "1", "Error", -1);
        row("denominator zero", "1/0", "5", -1);
        row("negative denominator", "1/-2", "5", -1);
    }
    void comparisons()
    {
        QFETCH(QByteArray, a);
        QFETCH(QByteArray, b);
        QTEST(BMax(a.constData(), b.constData()), "result");
    }
};

QTEST_APPLESS_MAIN(TestBignumModular)
#include "tst_BignumModular.moc"
