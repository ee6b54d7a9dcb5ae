// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/factoring/CurveStages.h"
#include "bignum/factoring/EllipticCurves.h"
#include "tests/Tabla.h"

using namespace bignum;
using namespace std::chrono_literals;

namespace {

const mpz_class p15("100000000000031");
const mpz_class p20("10000000000000000051");
const mpz_class p40("1000000000000000000000000000000000000003");
const std::function<bool()> never = [] { return false; };

} // namespace

/// The curves of our own, whatever the rest of the build factors with.
class TestOwnCurves : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void residues()
    {
        for (const mpz_class &n :
             {mpz_class(3), mpz_class((mpz_class(1) << 64) - 59), mpz_class(p20 * p40)}) {
            MontgomeryModulus modulus(n);
            for (const mpz_class &a :
                 {mpz_class(0), mpz_class(1), mpz_class(n / 2), mpz_class(n - 1)}) {
                auto x = modulus.fromInteger(a);
                QCOMPARE(modulus.toInteger(x), a);
                modulus.add(x, x, modulus.fromInteger(n - 1));
                QCOMPARE(modulus.toInteger(x), mpz_class((a + n - 1) % n));
            }
        }
    }

    /// Multiples by ladders of different lengths are the same point.
    void multiples()
    {
        const mpz_class n = p15 * p20;
        MontgomeryModulus modulus(n);
        MontgomeryCurve curve(modulus, 12345);
        const MontgomeryCurve::Point p{modulus.fromInteger(7), modulus.fromInteger(1)};
        for (const auto &[a, b] : {std::pair{1U, 2U}, {2U, 3U}, {97U, 1009U}, {65'536U, 65'537U}}) {
            const auto one = curve.multiply(curve.multiply(p, a).low, b).low;
            const auto other = curve.multiply(p, std::uint64_t{a} * b - 1).high;
            auto left = one.x, right = one.z;
            modulus.multiply(left, one.x, other.z);
            modulus.multiply(right, other.x, one.z);
            QCOMPARE(modulus.toInteger(left), modulus.toInteger(right));
        }
    }

    void factors_data()
    {
        QTest::addColumn<QString>("factor");
        QTest::addColumn<double>("bound");
        QTest::newRow("15 digits, short stride") << QString::fromStdString(p15.get_str()) << 500.0;
        QTest::newRow("15 digits, long stride") << QString::fromStdString(p15.get_str()) << 2000.0;
        QTest::newRow("20 digits") << QString::fromStdString(p20.get_str()) << 11000.0;
    }
    void factors()
    {
        QFETCH(const QString, factor);
        QFETCH(const double, bound);
        const mpz_class p(factor.toStdString());
        const std::array levels{CurveLevel{bound, 2000}};
        const StopSignal stop(Deadline(200s));
        for (const unsigned threads : {1U, 2U}) {
            const auto found = curveFactor(p * p40, levels, stop, threads);
            QVERIFY(found);
            QCOMPARE(found->factor == p ? found->factor : mpz_class(p * p40 / found->factor), p);
            QCOMPARE(found->bound, bound);
        }
    }

    /// A parameter whose curve cannot be written down modulo n shows a factor, or nothing.
    void curvesThatAreNone()
    {
        const mpz_class n = 10'007 * p40;
        CurveStages stages(n, 500, never);
        QCOMPARE(stages.run(mpz_class(10'007)).value_or(0), mpz_class(10'007));
        QVERIFY(!stages.run(n));
    }

    void stops()
    {
        const StopSignal stop(Deadline(50ms));
        const std::array levels{CurveLevel{1e6, 100}};
        QElapsedTimer time;
        time.start();
        QVERIFY(!curveFactor(p40 * ((mpz_class(1) << 127) - 1), levels, stop, 2));
        QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    }
};

QTEST_GUILESS_MAIN(TestOwnCurves)
#include "tst_OwnCurves.moc"
