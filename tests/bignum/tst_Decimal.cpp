// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/bignum.h"

#include "tests/Tabla.h"

#include <gmpxx.h>
#include <random>
#include <string>

namespace {

std::string decimal(const std::string &rational)
{
    std::string buffer(16384 + 16, '\x5a');
    const bool success = ToDecimal(rational.c_str(), buffer.data()) != 0;
    if (buffer.find_first_not_of('\x5a', 16384) != std::string::npos)
        return "overrun";
    return success ? buffer.c_str() : "fails";
}

/// The value of a decimal text.
mpq_class valueOf(const std::string &text)
{
    const auto point = text.find('.');
    std::string digits = text;
    mpz_class denominator = 1;
    if (point != std::string::npos) {
        digits.erase(point, 1);
        mpz_ui_pow_ui(denominator.get_mpz_t(), 10, text.size() - point - 1);
    }
    mpq_class value(mpz_class(digits, 10), denominator);
    value.canonicalize();
    return value;
}

/// Of either sign, tiny, middling or huge; every other one has an expansion that ends.
mpq_class randomFraction(std::mt19937_64 &random)
{
    const auto natural = [&] { return mpz_class(std::to_string(random() >> (random() % 64))); };
    mpz_class denominator = natural() + 1;
    if (random() % 2 == 0)
        mpz_ui_pow_ui(denominator.get_mpz_t(), 2, random() % 64);
    mpz_class scale;
    mpz_ui_pow_ui(scale.get_mpz_t(), 10, random() % 3 == 0 ? random() % 80 : 0);
    mpq_class value(natural(), denominator);
    value.canonicalize();
    value = random() % 2 == 0 ? mpq_class(value * scale) : mpq_class(value / scale);
    return random() % 2 == 0 ? value : mpq_class(-value);
}

/// The power of ten whose inverse is the last place that may be given of a value >= 0.
mpz_class unitOfLastPlace(const mpq_class &value, int precision)
{
    const mpz_class whole = value.get_num() / value.get_den();
    mpz_class unit = 1;
    int given = whole == 0 ? 1 : static_cast<int>(whole.get_str().size());
    while (value != 0 && value * unit < 1)
        unit *= 10;
    for (; given < precision; ++given)
        unit *= 10;
    return unit;
}

} // namespace

class TestDecimal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { InitBignum(100); }

    void values_data()
    {
        filasDeTexto<QByteArray, QByteArray, QByteArray>(uR"(
exact: || 5 | 1234567 | 1234567 || 5 | 0 | 0 || 100 | -49/4 | -12.25 || 100 | 1/2 | 0.5
exact: || 5 | 10000001/100000000 | 0.1
rounded: || 5 | 1/3 | 0.33333 || 5 | -2/3 | -0.66667 || 3 | 123456/10 | 12346
zeros do not count: || 3 | 1/700000 | 0.00000143
digits of 65 are guessed as three: || 2 | 7/65 | 0.11
carries: || 3 | 9996/10000 | 1 || 3 | 99996/1000 | 100
ties: || 2 | 25/1000 | 0.025 || 1 | 25/100 | 0.2 || 1 | 35/100 | 0.4 || 1 | 25/2 | 12
just above a tie: || 1 | 2500000001/10000000000 | 0.3
precisions below 1: || 0 | 1/3 | 0.3 || -5 | 1/3 | 0.3
no values: || 5 | 1/0 | fails || 5 | 1/-2 | fails || 5 | x | fails)"_s);
    }
    void values()
    {
        const auto [precision, rational, expected] = estaFila<QByteArray, QByteArray, QByteArray>();
        InitBignum(precision.toInt());
        QCOMPARE(QByteArray::fromStdString(decimal(rational.toStdString())), expected);
    }

    void theBufferIsTheLimit()
    {
        InitBignum(10);
        QCOMPARE(decimal(std::string(16383, '7')), std::string(16383, '7'));
        QCOMPARE(decimal(std::string(16384, '7')), "fails");
        QCOMPARE(decimal("1/1" + std::string(16381, '0')).size(), std::size_t(16383));
        QCOMPARE(decimal("1/1" + std::string(16382, '0')), "fails");
    }

    /// The text is the nearest of its length, and among the two nearest the even one.
    void randomFractions()
    {
        std::mt19937_64 random(11);
        int ties = 0;
        for (int i = 0; i < 4000; ++i) {
            const int precision = 1 + static_cast<int>(random() % 60);
            InitBignum(precision);
            const mpq_class q = randomFraction(random);
            const std::string text = decimal(q.get_str());
            const mpz_class unit = unitOfLastPlace(abs(q), precision);
            const mpq_class error = abs(valueOf(text) - q) * unit;
            QVERIFY2(error <= mpq_class(1, 2), (q.get_str() + " " + text).c_str());
            if (error == mpq_class(1, 2)) {
                ++ties;
                QVERIFY(mpz_even_p(mpz_class(valueOf(text) * unit).get_mpz_t()) != 0);
            }
            QVERIFY(text.find('.') == std::string::npos || text.back() != '0');
            QCOMPARE(text.starts_with('-'), q < 0);
        }
        QVERIFY(ties > 10);
    }

    /// Digit by digit as on paper, where nothing has to be rounded.
    void longDivision()
    {
        InitBignum(1000);
        std::string digits;
        for (int rest = 1, i = 0; i < 999; ++i) {
            rest *= 10;
            digits += static_cast<char>('0' + rest / 17);
            rest %= 17;
        }
        const std::string text = decimal("1/17");
        QCOMPARE(text.substr(2, 999), digits);
        QCOMPARE(text.size(), std::size_t(2 + 1001)); // a zero, then 1000 digits
    }
};

QTEST_GUILESS_MAIN(TestDecimal)
#include "tst_Decimal.moc"
