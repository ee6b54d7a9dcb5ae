// SPDX-License-Identifier: GPL-3.0-or-later
#include "BignumCalls.h"
#include "tests/Tabla.h"

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
        filasDeTexto<QByteArray, QByteArray>(uR"(
123 | 123 || 000123 | 123 || +5 | 5 || -0 | 0 ||  | failure || - | failure || +-5 | failure
- 5 | failure
1 000 | failure || 1.0 | failure || 0x10 | failure || 1e5 | failure || 12a | failure)"_s);
        otraFila<QByteArray, QByteArray>(u"blanks around"_s, " \t\r\n-5 \n"_ba, "-5"_ba);
        otraFila<QByteArray, QByteArray>(u"blank"_s, "  "_ba, "failure"_ba);
        otraFila<QByteArray, QByteArray>(u"no-break space"_s, QByteArray("\xA0") + "5",
                                         "failure"_ba);
        otraFila<QByteArray, QByteArray>(u"superscript digit"_s, "5\xB2"_ba, "failure"_ba);
    }
    void numberTexts()
    {
        const auto [text, expected] = estaFila<QByteArray, QByteArray>();
        const auto number = call(ToBasis, 10, text.constData());
        QCOMPARE(QByteArray::fromStdString(number.value_or("failure")), expected);
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
        for (const auto &result :
             {call(NextPrime, null), call(EulerFi, null), call(BMcd, "1", null),
              call(BMod, null, "1"), call(PowMod, "2", null, "7"), call(InvMod, "2", null),
              call(CRT, nulls, fives, 1), call(CRT, nothing, fives, 1), call(CRT, fives, fives, -1),
              call(ToBasis, 2, null), call(ToDecimal, null), call(ZEval, null), call(QEval, null)})
            QCOMPARE(result.value_or("failure"), std::string("failure"));
    }

    void nullBuffersAreFailures()
    {
        const char *const fives[] = {"5"};
        NumberBuffer d;
        NumberBuffer x;
        for (const int done :
             {NextPrime("5", nullptr), RndPrimo(10, nullptr), EulerFi("5", nullptr),
              BMcd("5", "5", nullptr), BMod("5", "5", nullptr), PowMod("5", "5", "5", nullptr),
              InvMod("2", "5", nullptr), CRT(fives, fives, 1, nullptr), ToBasis(2, "5", nullptr),
              ToDecimal("5", nullptr), ZEval("5", nullptr), QEval("5", nullptr),
              BExMcd("5", "5", d.data(), x.data(), nullptr)})
            QCOMPARE(done, 0);
        QVERIFY(d.text().empty() && x.text().empty());
    }

    void precisionIsBounded()
    {
        InitBignum(5000);
        QCOMPARE(call(ToDecimal, "1/3").value_or("failure").size(), std::size_t{1002});
        EndBignum();
        QCOMPARE(call(ToDecimal, "1/3").value_or("failure").size(), std::size_t{102});
    }

    void plainTexts()
    {
        for (const char *plain : {"", "Matem\xE1tica discreta, \xBFs\xED? 5 \x80", "a\tb\r\nc"})
            QCOMPARE(IsText(plain), -1);
        for (const char *unfit : {"a\x07", "a\x7F", "mensaje\x9D"})
            QCOMPARE(IsText(unfit), 0);
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
                    const std::string left = a.get_str(), right = m.get_str();
                    const std::string rest = mpz_class(a % m).get_str();
                    const auto prime = call(NextPrime, right.c_str());
                    if (call(BMod, left.c_str(), right.c_str()) != rest ||
                        call(ZEval, (left + " % " + right).c_str()) != rest || !prime ||
                        IsPrime(prime->c_str()) != 1)
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
