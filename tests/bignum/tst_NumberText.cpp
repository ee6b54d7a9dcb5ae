// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/text/NumberText.h"

#include <QTest>

using namespace bignum;

class TestNumberText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void digitsAreCountedExactly();
};

void TestNumberText::digitsAreCountedExactly()
{
    QCOMPARE(decimalDigits(0), std::size_t{1});
    mpz_class power = 1;
    for (std::size_t digits = 1; digits <= 200; ++digits, power *= 10) {
        // Just below and at a power of ten, where a count by bits goes wrong.
        for (const mpz_class &n :
             {power, mpz_class(-power), mpz_class(9 * power), mpz_class(10 * power - 1)})
            QVERIFY2(decimalDigits(n) == digits, n.get_str().c_str());
    }
    // Counted as 71 by bits: it was left unsplit.
    const mpz_class n("7107078553702255398296694059021488159317150293384839751196715191360133");
    QCOMPARE(decimalDigits(n), std::size_t{70});
}

QTEST_APPLESS_MAIN(TestNumberText)

#include "tst_NumberText.moc"
