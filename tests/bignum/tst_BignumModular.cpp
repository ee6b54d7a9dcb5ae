// SPDX-License-Identifier: GPL-3.0-or-later
#include "BignumCalls.h"
#include "tests/Tabla.h"

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

/// Solves congruences written as "2 3 3 5": remainder and modulus.
std::string solve(const QByteArray &system)
{
    const QList<QByteArray> texts = system.split(' ');
    std::vector<const char *> remainders;
    std::vector<const char *> moduli;
    for (qsizetype i = 0; i + 1 < texts.size(); i += 2) {
        remainders.push_back(texts[i].constData());
        moduli.push_back(texts[i + 1].constData());
    }
    return call(CRT, remainders.data(), moduli.data(), static_cast<int32_t>(moduli.size()))
        .value_or(kFailure);
}

/// The result of an operation that is written as its name and what it works on.
std::string done(const QList<QByteArray> &words)
{
    const std::string a = words.at(1).toStdString();
    const std::string b = words.at(2).toStdString();
    if (words[0] == "mod")
        return modulo(a, b);
    if (words[0] == "power")
        return power(a, b, words.at(3).toStdString());
    if (words[0] == "inverse")
        return inverse(a, b);
    if (words[0] == "gcd")
        return call(BMcd, a.c_str(), b.c_str()).value_or(kFailure);
    if (words[0] == "base")
        return call(ToBasis, std::stoi(a), b.c_str()).value_or(kFailure);
    const Bezout result = bezout(a, b);
    return result.flag == 1 ? result.d + " " + result.x + " " + result.y : kFailure;
}

} // namespace

class TestBignumModular : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operations_data()
    {
        filasDeTexto<QByteArray, QByteArray>(uR"(
mod -7 3 | 2 || mod 7 -3 | 1 || mod -7 -3 | 2 || mod -9 3 | 0 || mod 12345678901234567890123 1 | 0
mod 5 0 | failure || mod x 3 | failure || mod 5 3x | failure
power 3 200 13 | 9 || power -2 3 7 | 6 || power 2 3 -7 | 1 || power 0 0 7 | 1 || power 5 0 1 | 0
power 3 -2 7 | 4 || power 5 2 0 | failure || power 6 -1 9 | failure || power 2 x 9 | failure
inverse 3 7 | 5 || inverse -3 7 | 2 || inverse 3 -7 | 5 || inverse 5 1 | 0 || inverse 0 -1 | 0
inverse 1 0 | failure || inverse 6 9 | failure || inverse 0 9 | failure
gcd -12 18 | 6 || gcd 0 -18 | 18 || gcd 0 0 | 0 || gcd 0 1/2 | failure
base 2 10 | 1010 || base 16 255 | ff || base 36 -1295 | -zz || base 7 0 | 0
base 1 5 | failure || base 37 5 | failure || base -16 5 | failure || base 2 five | failure
bezout 240 46 | 2 -9 47 || bezout 17 3120 | 1 -367 2 || bezout 0 0 | 0 0 0 || bezout 0 5 | 5 0 1
bezout -5 0 | 5 -1 0 || bezout 6 6 | 6 0 1 || bezout 1 1 | 1 0 1 || bezout 12 4 | 4 0 1
bezout 7 -1 | 1 0 -1)"_s);
    }
    void operations()
    {
        const auto [operation, expected] = estaFila<QByteArray, QByteArray>();
        QCOMPARE(QByteArray::fromStdString(done(operation.split(' '))), expected);
    }

    void longOperands()
    {
        const std::string modulus = "1" + std::string(9000, '0');
        QCOMPARE(power("2", "10", modulus), std::string("1024"));
        QCOMPARE(power("2", "1" + std::string(2000, '0'), modulus), std::string(kFailure));
        QVERIFY(!call(ToBasis, 2, ("1" + std::string(3000, '0')).c_str()));
        QCOMPARE(call(ToBasis, 10, " +0042 "), std::optional<std::string>("42"));
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
        filasDeTexto<QByteArray, QByteArray>(uR"(
2 3 3 5 2 7 | 23 || 17 5 | 2 || -1 3 -1 5 | 14 || 2 -3 3 5 | 8 || 5 1 3 4 | 3 || 5 0 3 4 | failure
not coprime: || 3 4 5 6 | 11 || 3 4 7 4 | 3 || 3 4 4 6 | failure
no numbers: || 5 3 a 4 | failure ||  | failure)"_s);
    }
    void congruences()
    {
        const auto [system, solution] = estaFila<QByteArray, QByteArray>();
        QCOMPARE(QByteArray::fromStdString(solve(system)), solution);
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
                system += remainder.get_str() + " " + moduli.back().get_str() + " ";
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
        // A stretch of the additions ends where the whole of them does; what came before is not
        // counted.
        for (const auto &[from, n] :
             {std::pair{0, 1}, {0, 20}, {19, 20}, {10, 20}, {100'000, 117'592}}) {
            QCOMPARE(Fibonacci(BIGNUM_DOUBLING, n, 1, expected.data(), &cost), 1);
            QCOMPARE(FibonacciFrom(from, n, out.data(), &cost), 1);
            QCOMPARE(out.text(), expected.text());
            QCOMPARE(cost.additions, int64_t{n - from - 1});
        }
        for (const auto &[from, n] : {std::pair{-1, 20}, {20, 20}, {21, 20}, {0, 117'593}})
            QCOMPARE(FibonacciFrom(from, n, out.data(), &cost), 0);
    }

    void comparisons_data()
    {
        filasDeTexto<QByteArray, QByteArray, QByteArray>(uR"(
2 | 10 | 2 || 10 | 9 | 1 || 10 | +010 | 0 || -10 | -9 | 2 ||  | 1 | 2 || 0 |  | 0
rationals: || 1/3 | 1/2 | 2 || 2/4 | 1/2 | 0 || 7/2 | 3 | 1 || 1/0 | 5 | -1 || 1/-2 | 5 | -1
no number: || 1 | Error | -1)"_s);
        const QByteArray large = "1"_ba + QByteArray(20000, '0');
        otraFila<QByteArray, QByteArray, QByteArray>(u"long"_s, large, large + "0", "2"_ba);
        otraFila<QByteArray, QByteArray, QByteArray>(u"blanks"_s, "0"_ba, "  "_ba, "0"_ba);
    }
    void comparisons()
    {
        const auto [a, b, larger] = estaFila<QByteArray, QByteArray, QByteArray>();
        QCOMPARE(QByteArray::number(BMax(a.constData(), b.constData())), larger);
    }
};

QTEST_APPLESS_MAIN(TestBignumModular)
#include "tst_BignumModular.moc"
