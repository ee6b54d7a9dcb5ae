// SPDX-License-Identifier: GPL-3.0-or-later
#include "BignumCalls.h"

#include <atomic>
#include <thread>

extern "C" int32_t sumOfPrimesUpTo10(void);
extern "C" int32_t exponentsOf360(void);

namespace {

const std::string kLongestResult(8191, '7');
const std::string kTooLongResult(8192, '7');

} // namespace

/// What all entry points have in common: texts, buffers, null pointers, threads.
class TestBignumInterface : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headerServesC()
    {
        QCOMPARE(sumOfPrimesUpTo10(), 17);
        QCOMPARE(exponentsOf360(), 6);
    }

    void numberTexts_data()
    {
        QTest::addColumn<std::string>("text");
        QTest::addColumn<std::string>("number");
        const auto row = [](const char *name, const char *text, const char *number) {
            QTest::newRow(name) << std::string(text) << std::string(number);
        };
        row("digits", "123", "123");
        row("zeros before", "000123", "123");
        row("plus", "+5", "5");
        row("minus zero", "-0", "0");
        row("blanks around", " \t\r\n-5 \n", "-5");
        row("empty", "", "failure");
        row("blank", "  ", "failure");
        row("sign alone", "-", "failure");
        row("two signs", "+-5", "failure");
        row("blank after the sign", "- 5", "failure");
        row("blank inside", "1 000", "failure");
        row("point", "1.0", "failure");
        row("hexadecimal", "0x10", "failure");
        row("exponent", "1e5", "failure");
        row("letter", "12a", "failure");
        row("no-break space",
            "\xA0"
            "5",
            "failure");
        row("superscript digit", "5\xB2", "failure");
    }
    void numberTexts()
    {
        QFETCH(std::string, text);
        QTEST(call(ToBasis, 10, text.c_str()).value_or("failure"), "number");
    }

    void resultsFillTheirBuffers()
    {
        QCOMPARE(call(ToBasis, 10, kLongestResult.c_str()), std::optional(kLongestResult));
        QVERIFY(!call(ToBasis, 10, kTooLongResult.c_str()));
        QVERIFY(!call(ToBasis, 10, ("-" + kLongestResult).c_str()));
        QCOMPARE(call(BMcd, kLongestResult.c_str(), "0"), std::optional(kLongestResult));
        QVERIFY(!call(BMcd, kTooLongResult.c_str(), "0"));

        // One of three results does not fit: all three are empty.
        NumberBuffer d;
        NumberBuffer x;
        NumberBuffer y;
        QCOMPARE(BExMcd("1", "1", d.data(), x.data(), y.data()), 1);
        QCOMPARE(BExMcd("0", kTooLongResult.c_str(), d.data(), x.data(), y.data()), 0);
        QVERIFY(d.text().empty() && x.text().empty() && y.text().empty());
        QVERIFY(d.isIntact() && x.isIntact() && y.isIntact());

        const char *const remainders[] = {kTooLongResult.c_str()};
        const char *const moduli[] = {"97"};
        QVERIFY(call(CRT, remainders, moduli, 1).has_value());
        const std::string modulus = kTooLongResult + "0";
        const char *const longModuli[] = {modulus.c_str()};
        QVERIFY(!call(CRT, remainders, longModuli, 1));
    }

    void longestInputs()
    {
        const std::string longest(24575, '9');
        QCOMPARE(call(BMod, longest.c_str(), "10"), std::optional(std::string("9")));
        QCOMPARE(call(BMod, ("-" + longest).c_str(), "10"), std::optional(std::string("1")));
        QVERIFY(!call(BMod, (longest + "9").c_str(), "10"));
        QVERIFY(!call(BMod, ("0" + longest).c_str(), "10"));
        QCOMPARE(NumBits(std::string(1000000, '1').c_str()), 0);
    }

    void nullTextsAreEmpty()
    {
        QCOMPARE(IsPrime(nullptr), 0);
        QCOMPARE(NumBits(nullptr), 0);
        QCOMPARE(BMax(nullptr, nullptr), 0);
        QCOMPARE(BMax(nullptr, "1"), 2);
        QCOMPARE(IsText(nullptr), -1);
        const char *const null = nullptr;
        const char *const nulls[] = {null};
        const char *const fives[] = {"5"};
        const char *const *const nothing = nullptr;
        QVERIFY(!call(NextPrime, null));
        QVERIFY(!call(EulerFi, null));
        QVERIFY(!call(BMcd, "1", null));
        QVERIFY(!call(BMod, null, "1"));
        QVERIFY(!call(PowMod, "2", null, "7"));
        QVERIFY(!call(InvMod, "2", null));
        QVERIFY(!call(CRT, nulls, fives, 1));
        QVERIFY(!call(CRT, nothing, fives, 1));
        QVERIFY(!call(CRT, fives, fives, -1));
        QVERIFY(!call(ToBasis, 2, null));
        QVERIFY(!call(ToDecimal, null));
        QVERIFY(!call(ZEval, null));
        QVERIFY(!call(QEval, null));
    }

    void nullBuffersAreFailures()
    {
        const char *const fives[] = {"5"};
        QCOMPARE(NextPrime("5", nullptr), 0);
        QCOMPARE(RndPrimo(10, nullptr), 0);
        QCOMPARE(EulerFi("5", nullptr), 0);
        QCOMPARE(BMcd("5", "5", nullptr), 0);
        QCOMPARE(BMod("5", "5", nullptr), 0);
        QCOMPARE(PowMod("5", "5", "5", nullptr), 0);
        QCOMPARE(InvMod("2", "5", nullptr), 0);
        QCOMPARE(CRT(fives, fives, 1, nullptr), 0);
        QCOMPARE(ToBasis(2, "5", nullptr), 0);
        QCOMPARE(ToDecimal("5", nullptr), 0);
        QCOMPARE(ZEval("5", nullptr), 0);
        QCOMPARE(QEval("5", nullptr), 0);
        NumberBuffer d;
        NumberBuffer x;
        QCOMPARE(BExMcd("5", "5", d.data(), x.data(), nullptr), 0);
        QVERIFY(d.text().empty() && x.text().empty());
    }

    void precisionIsBounded()
    {
        const auto third = [](int precision) {
            InitBignum(precision);
            return call(ToDecimal, "1/3").value_or("failure");
        };
        QCOMPARE(third(5), std::string("0.33333"));
        QCOMPARE(third(0), std::string("0.3"));
        QCOMPARE(third(-7), std::string("0.3"));
        QCOMPARE(third(5000).size(), std::size_t{1002});
        EndBignum();
        QCOMPARE(call(ToDecimal, "1/3").value_or("failure").size(), std::size_t{102});
    }

    void plainTexts_data()
    {
        QTest::addColumn<std::string>("text");
        QTest::addColumn<int>("plain");
        QTest::newRow("empty") << std::string() << -1;
        QTest::newRow("accents") << std::string("Matem\xE1tica discreta, \xBFs\xED? 5 \x80") << -1;
        QTest::newRow("lines and tabs") << std::string("a\tb\r\nc") << -1;
        QTest::newRow("control character") << std::string("a\x07") << 0;
        QTest::newRow("delete") << std::string("a\x7F") << 0;
        QTest::newRow("undefined at the end") << std::string("mensaje\x9D") << 0;
    }
    void plainTexts()
    {
        QFETCH(std::string, text);
        QTEST(IsText(text.c_str()), "plain");
    }

    void everyByteIsJudged()
    {
        int refused = 0;
        for (int byte = 1; byte < 256; ++byte)
            refused += IsText(std::string(1, static_cast<char>(byte)).c_str()) == 0 ? 1 : 0;
        // 31 control characters less tab, LF and CR; delete; five codes without a character.
        QCOMPARE(refused, 31 - 3 + 1 + 5);
    }

    void threadsDoNotDisturbEachOther()
    {
        std::vector<std::thread> threads;
        std::atomic<int> failures = 0;
        for (unsigned long seed : {1UL, 2UL, 3UL}) {
            threads.emplace_back([&failures, seed] {
                Random random(seed);
                for (int i = 0; i < 300; ++i) {
                    const mpz_class a = random.bits(300);
                    const mpz_class m = random.bits(200) + 1;
                    const mpz_class expected = a % m;
                    if (call(BMod, a.get_str().c_str(), m.get_str().c_str()) != expected.get_str())
                        ++failures;
                    if (call(ZEval, (a.get_str() + " % " + m.get_str()).c_str()) !=
                        expected.get_str())
                        ++failures;
                    const auto prime = call(NextPrime, m.get_str().c_str());
                    if (!prime || IsPrime(prime->c_str()) != 1)
                        ++failures;
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(failures.load(), 0);
    }
};

QTEST_APPLESS_MAIN(TestBignumInterface)
#include "tst_BignumInterface.moc"
