// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/bignum.h"

#include <QTest>
#include <array>
#include <gmpxx.h>
#include <optional>
#include <random>
#include <string>

namespace {

constexpr std::size_t kBuffer = 24576;

/// The value of an expression, or "fails"; what stands behind the buffer must not change.
template <typename Entry>
std::string evaluated(Entry entry, const std::string &expression)
{
    std::string buffer(kBuffer + 16, '\x5a');
    const bool success = entry(expression.c_str(), buffer.data()) != 0;
    if (buffer.find_first_not_of('\x5a', kBuffer) != std::string::npos)
        return "overrun";
    const std::string text = buffer.c_str();
    return success ? text : text.empty() ? "fails" : "fails with a text";
}

std::string repeated(std::string_view what, std::size_t times)
{
    std::string text;
    for (std::size_t i = 0; i < times; ++i)
        text += what;
    return text;
}

/// A random expression as text, built beside its value by GMP itself. Brackets stand only where the
/// grammar needs them, so that a wrong precedence shows.
class RandomExpression
{
public:
    enum class Numbers { Integers, Rationals };

    RandomExpression(Numbers numbers, unsigned seed) : m_numbers(numbers), m_random(seed) {}

    struct Part
    {
        std::string text;
        std::optional<mpq_class> value; ///< nothing where it is undefined
        int strength; ///< of its loosest operator: 1 sum, 2 product, 3 sign, 4 power, 5
    };

    Part part(int depth)
    {
        if (depth == 0 || pick(6) == 0)
            return number();
        switch (pick(8)) {
        case 0:
            return binary('+', depth, 1);
        case 1:
            return binary('-', depth, 1);
        case 2:
            return binary('*', depth, 2);
        case 3:
            return binary('/', depth, 2);
        case 4:
            return binary('%', depth, 2);
        case 5:
            return implicitProduct(depth);
        case 6:
            return power(depth);
        default:
            return negated(depth);
        }
    }

private:
    int pick(int n) { return static_cast<int>(m_random() % static_cast<unsigned>(n)); }

    Part number()
    {
        if (pick(8) == 0) {
            constexpr std::array factorials{1, 1, 2, 6, 24, 120};
            const int n = pick(6);
            return {std::to_string(n) + '!', mpq_class(factorials.at(static_cast<size_t>(n))), 5};
        }
        const int n = pick(3) == 0 ? pick(100000) : pick(12);
        return {std::to_string(n), mpq_class(n), 5};
    }

    std::string inBrackets(const std::string &text)
    {
        constexpr std::array kinds{"()", "[]", "{}"};
        const char *kind = kinds.at(static_cast<std::size_t>(pick(3)));
        return kind[0] + text + kind[1];
    }

    std::string bracketed(const Part &part, int least)
    {
        return part.strength >= least ? part.text : inBrackets(part.text);
    }

    Part binary(char symbol, int depth, int strength)
    {
        const Part a = part(depth - 1);
        const Part b = part(depth - 1);
        const std::string text = bracketed(a, strength) + symbol + bracketed(b, strength + 1);
        if (!a.value || !b.value)
            return {text, {}, strength};
        return {text, applied(symbol, *a.value, *b.value), strength};
    }

    std::optional<mpq_class> applied(char symbol, const mpq_class &a, const mpq_class &b) const
    {
        if (symbol == '+')
            return a + b;
        if (symbol == '-')
            return a - b;
        if (symbol == '*')
            return a * b;
        if (b == 0)
            return {};
        if (symbol == '/' && m_numbers == Numbers::Rationals)
            return a / b;
        if (a.get_den() != 1 || b.get_den() != 1)
            return {};
        const mpz_class divisor = abs(b.get_num());
        const mpz_class rest = (a.get_num() % divisor + divisor) % divisor;
        return symbol == '%' ? mpq_class(rest) : (a - rest) / b;
    }

    Part implicitProduct(int depth)
    {
        const Part a = part(depth - 1);
        const Part b = part(depth - 1);
        const std::string left = bracketed(a, 2);
        const std::string text =
            (left.back() == '!' ? inBrackets(left) : left) + inBrackets(b.text);
        if (!a.value || !b.value)
            return {text, {}, 2};
        return {text, mpq_class(*a.value * *b.value), 2};
    }

    Part power(int depth)
    {
        struct Exponent
        {
            const char *text;
            int value;
        };
        constexpr std::array<Exponent, 10> exponents{{{"0", 0},
                                                      {"1", 1},
                                                      {"2", 2},
                                                      {"3", 3},
                                                      {"2!", 2},
                                                      {"2^1^3", 2},
                                                      {"-1", -1},
                                                      {"-2", -2},
                                                      {"-2^0", -1},
                                                      {"+3", 3}}};
        const Part base = part(depth - 1);
        const Exponent &exponent = exponents.at(static_cast<std::size_t>(pick(10)));
        const std::string text = bracketed(base, 5) + "^" + exponent.text;
        if (!base.value || (exponent.value < 0 && *base.value == 0))
            return {text, {}, 4};
        mpq_class value = 1;
        for (int i = 0; i < std::abs(exponent.value); ++i)
            value *= *base.value;
        if (exponent.value < 0)
            value = 1 / value;
        if (m_numbers == Numbers::Integers && value.get_den() != 1)
            return {text, {}, 4};
        return {text, value, 4};
    }

    Part negated(int depth)
    {
        const Part inner = part(depth - 1);
        const std::string text = std::string(1, '-') + bracketed(inner, 3);
        if (!inner.value)
            return {text, {}, 3};
        return {text, mpq_class(-*inner.value), 3};
    }

    Numbers m_numbers;
    std::mt19937 m_random;
};

} // namespace

class TestExpression : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_data()
    {
        QTest::addColumn<QByteArray>("expression");
        QTest::addColumn<QByteArray>("integer");
        QTest::addColumn<QByteArray>("rational");
        const auto row = [](const char *name, const char *expression, const char *integer,
                            const char *rational) {
            QTest::newRow(name) << QByteArray(expression) << QByteArray(integer)
                                << QByteArray(rational);
        };
        row("wrapped", "0+(7 % 3)", "1", "1");
        row("sums from the left", "10-4-3", "3", "3");
        row("products from the left", "100/10/5", "2", "2");
        row("powers from the right", "2^3^2", "512", "512");
        row("sign under a power", "-2^2", "-4", "-4");
        row("sign in an exponent", "2^-1", "fails", "1/2");
        row("whole by a negative exponent", "(-1)^-3", "-1", "-1");
        row("zero to the zero", "0^0", "1", "1");
        row("zero to a negative", "0^-1", "fails", "fails");
        row("factorial over power", "2^3!", "64", "64");
        row("power of a factorial", "3!^2", "36", "36");
        row("factorial twice", "3!!", "720", "720");
        row("factorial of a negative", "(-1)!", "fails", "fails");
        row("factorial of a fraction", "(1/2)!", "1", "fails");
        row("implicit product", "(5)2", "10", "10");
        row("number and bracket", "2(3)[4]{5}", "120", "120");
        row("implicit like explicit", "6/2(3)", "9", "9");
        row("bracket and function", "(2)mcd(4;6)", "4", "4");
        row("number and function", "2mcd(4;6)", "fails", "fails");
        row("two numbers", "5 5", "fails", "fails");
        row("Euclid +-", "-7/2", "-4", "-7/2");
        row("Euclid +- rest", "-7%2", "1", "1");
        row("Euclid -+", "7/-2", "-3", "-7/2");
        row("Euclid -+ rest", "7%-2", "1", "1");
        row("Euclid --", "-7/-2", "4", "7/2");
        row("rest of a fraction", "7/2%2", "1", "fails");
        row("division by zero", "1/(2-2)", "fails", "fails");
        row("rest by zero", "1%0", "fails", "fails");
        row("modular power", "3^1000000000000%1000007", "273158", "273158");
        row("its sign", "-3^2%7", "5", "5");
        row("its sign, large", "-3^100%7", "3", "3");
        row("negative modulus", "3^5%-7", "5", "5");
        row("power behind a product", "2*3^4%7", "1", "1");
        row("power modulo zero", "2^5%0", "fails", "fails");
        row("decimals", "1,5+.25", "fails", "7/4");
        row("whole decimals", "2.0*3,00", "6", "6");
        row("point without decimals", "2.", "fails", "fails");
        row("two points", "1.2.3", "fails", "fails");
        row("lowest terms", "6/4-1/2", "1", "1");
        row("root", "raiz(99)+SQRT[100]", "19", "19");
        row("root of a negative", "raiz(-1)", "fails", "fails");
        row("root of a fraction", "raiz(1/4)", "0", "fails");
        row("root with an accent, UTF-8", "ra\u00EDz(9)+RA\u00CDZ(16)", "7", "7");
        row("root with an accent, Windows-1252", "ra\xEDz(9)+RA\xCDZ(16)", "7", "7");
        row("gcd of many", "gcd(12;18;27)", "3", "3");
        row("lcm", "Mcm(4;6;10)", "60", "60");
        row("absolute", "abs(-3/4)", "1", "3/4");
        row("smallest, largest", "min(3;1/2)+max(1/3;1/4)", "0", "5/6");
        row("Euler", "fi(36)+phi(97)", "108", "108");
        // Two primes of 39 digits: more than a second's work.
        row("Euler of what is not split", "fi(nextprime(10^38)*nextprime(3*10^38))", "fails",
            "fails");
        row("Fibonacci", "fib(100)", "354224848179261915075", "354224848179261915075");
        row("primality", "primo(97)+10*isprime(91)", "1", "1");
        row("next prime", "sigprimo(97)+nextprime(-5)", "103", "103");
        row("unknown name", "sen(1)", "fails", "fails");
        row("name alone", "mcd", "fails", "fails");
        row("no argument", "mcd()", "fails", "fails");
        row("too many", "abs(1;2)", "fails", "fails");
        row("separator outside", "1;2", "fails", "fails");
        row("kinds of brackets", "{[(1+2)*3]}", "9", "9");
        row("crossed brackets", "([1)]", "fails", "fails");
        row("unclosed", "(1+2", "fails", "fails");
        row("unopened", "1+2)", "fails", "fails");
        row("empty", "", "fails", "fails");
        row("empty brackets", "()", "fails", "fails");
        row("dangling", "1+", "fails", "fails");
        row("line breaks", "1\r\n+\t2", "3", "3");
        row("other signs", "1&2", "fails", "fails");
        row("signs upon signs", "2--+-3", "-1", "-1");
    }
    void values()
    {
        QFETCH(QByteArray, expression);
        const std::string text = expression.toStdString();
        QTEST(QByteArray::fromStdString(evaluated(ZEval, text)), "integer");
        QTEST(QByteArray::fromStdString(evaluated(QEval, text)), "rational");
    }

    void refused_data()
    {
        QTest::addColumn<QByteArray>("expression");
        const auto row = [](const char *name, const std::string &expression) {
            QTest::newRow(name) << QByteArray::fromStdString(expression);
        };
        row("tower", "9^9^9^9");
        row("power", "10^100000");
        row("factorial", "99999!");
        row("factorial of a factorial", "9!!");
        row("Fibonacci", "fib(10^9)");
        row("100 000 brackets", repeated("(", 100'000));
        row("100 000 signs", repeated("-", 100'000) + "1");
        row("100 000 powers", repeated("1^", 100'000) + "1");
        row("100 000 calls", repeated("abs(", 100'000));
        row("negative tower", "2^-9^9^9");
        row("growing squares", "(((((99!^9)^9)^9)^9)^9)");
        row("long modular power", "7^(10^24000)%(10^24000+1)");
        row("next of a huge number", "sigprimo(10^20000)");
        row("primality of a huge number", "primo(10^20000+1)");
        row("text of a megabyte", repeated("1+", 500'001) + "1");
        row("arguments beyond memory", "max(" + repeated("2^80000;", 120'000) + "1)");
    }
    void refused()
    {
        QFETCH(QByteArray, expression);
        QCOMPARE(evaluated(ZEval, expression.toStdString()), "fails");
        QCOMPARE(evaluated(QEval, expression.toStdString()), "fails");
    }

    void faults_data()
    {
        QTest::addColumn<QByteArray>("expression");
        QTest::addColumn<int>("fault");
        QTest::addColumn<QByteArray>("where");
        const auto row = [](const QByteArray &expression, int fault, const char *where = "") {
            QTest::newRow(expression.left(20).constData())
                << expression << fault << QByteArray(where);
        };
        row("1/2", BIGNUM_NO_FAULT);
        row("2**3", BIGNUM_MISSING_OPERAND, "*");
        row("2+", BIGNUM_MISSING_OPERAND);
        row("", BIGNUM_MISSING_OPERAND);
        row("5 6", BIGNUM_MISSING_OPERATOR, "6");
        row("1.000.000", BIGNUM_MISSING_OPERATOR, ".000");
        row("(5 6)", BIGNUM_MISSING_OPERATOR, "6");
        row("2)", BIGNUM_MISPLACED, ")");
        row("(2]", BIGNUM_MISPLACED, "]");
        row("1;2", BIGNUM_MISPLACED, ";");
        row("1e3", BIGNUM_UNKNOWN, "e");
        row("1<2", BIGNUM_UNKNOWN, "<");
        row("5.", BIGNUM_UNKNOWN, "5.");
        row("seno(1)", BIGNUM_UNKNOWN, "seno");
        row("1+fi", BIGNUM_BAD_ARGUMENTS, "fi");
        row("raiz(1;2)", BIGNUM_BAD_ARGUMENTS, "raiz");
        row("1/(2-2)", BIGNUM_ZERO_DIVISION);
        row("5%0", BIGNUM_ZERO_DIVISION);
        row("2^70%0", BIGNUM_ZERO_DIVISION);
        row("0^-1", BIGNUM_ZERO_DIVISION);
        row("1/2%3", BIGNUM_NOT_WHOLE);
        row("2^(1/2)", BIGNUM_NOT_WHOLE);
        row("(-1)!", BIGNUM_OUT_OF_DOMAIN);
        row("raiz(-1)", BIGNUM_OUT_OF_DOMAIN);
        row("fi(0)", BIGNUM_OUT_OF_DOMAIN);
        row("9^9^9", BIGNUM_TOO_LARGE);
        row("10^24575", BIGNUM_TOO_LARGE);
        row(QByteArray(2000, '('), BIGNUM_TOO_LARGE);
        row("sigprimo(10^20000)", BIGNUM_TOO_SLOW);
    }
    void faults()
    {
        QFETCH(QByteArray, expression);
        int32_t start = -1;
        int32_t length = -1;
        QTEST(int(QEvalFault(expression.constData(), &start, &length)), "fault");
        QTEST(expression.mid(start, length), "where");
        QCOMPARE(evaluated(QEval, expression.toStdString()) == "fails",
                 QTest::currentDataTag() != QByteArray("1/2"));
    }

    void growingDenominators()
    {
        std::string text = "0";
        for (int i = 100'003; i < 120'000; i += 2)
            text += "+1/" + std::to_string(i);
        QCOMPARE(evaluated(ZEval, text), "0");
        QCOMPARE(evaluated(QEval, text), "fails");
    }

    void largestValues()
    {
        QCOMPARE(evaluated(ZEval, "10^24575"), "fails");
        QCOMPARE(evaluated(ZEval, "10^24574").size(), std::size_t(24575));
        QCOMPARE(evaluated(ZEval, "-10^24573").size(), std::size_t(24575));
        QCOMPARE(evaluated(ZEval, "-10^24574"), "fails");
        QCOMPARE(evaluated(QEval, "1/10^24572").size(), std::size_t(24575));
        QCOMPARE(evaluated(QEval, "1/10^24573"), "fails");
        QCOMPARE(evaluated(ZEval, repeated("9", 24575)), repeated("9", 24575));
        QCOMPARE(evaluated(ZEval, repeated("9", 24576)), "fails");
        QCOMPARE(evaluated(ZEval, "fib(117592)").size(), std::size_t(24575));
        QCOMPARE(evaluated(ZEval, "fib(117593)"), "fails");
        QCOMPARE(evaluated(ZEval, "2^81636*1").size(), std::size_t(24576 - 1));
        // Whole values on the way have the same bound in both evaluators.
        for (const char *onTheWay : {"10^24574*9-10^24574*9", "2^81638-2^81638", "2^81639-2^81639"})
            QCOMPARE(evaluated(QEval, onTheWay), evaluated(ZEval, onTheWay));
        QCOMPARE(evaluated(ZEval, repeated("(", 900) + "7" + repeated(")", 900)), "7");
    }

    void nulls()
    {
        std::array<char, kBuffer> buffer{};
        QCOMPARE(ZEval(nullptr, buffer.data()), 0);
        QCOMPARE(ZEval("1", nullptr), 0);
        QCOMPARE(QEval("1", nullptr), 0);
        int32_t place = 0;
        QCOMPARE(QEvalFault(nullptr, &place, &place), -1);
        QCOMPARE(EvalFunction(0, nullptr), 0);
    }

    void randomExpressions_data()
    {
        using Numbers = RandomExpression::Numbers;
        QTest::addColumn<Numbers>("numbers");
        QTest::newRow("integers") << Numbers::Integers;
        QTest::newRow("rationals") << Numbers::Rationals;
    }
    void randomExpressions()
    {
        QFETCH(RandomExpression::Numbers, numbers);
        const auto entry = numbers == RandomExpression::Numbers::Integers ? ZEval : QEval;
        int defined = 0;
        for (unsigned seed = 1; seed <= 3000; ++seed) {
            const auto part = RandomExpression(numbers, seed).part(4);
            const std::string expected = part.value ? part.value->get_str() : "fails";
            const std::string actual = evaluated(entry, part.text);
            QVERIFY2(actual == expected, (part.text + ": " + actual + ", not " + expected).c_str());
            defined += part.value ? 1 : 0;
        }
        QVERIFY(defined > 1500);
    }

    void EuclidOnRandomNumbers()
    {
        std::mt19937 random(7);
        for (int i = 0; i < 500; ++i) {
            const std::string n = std::to_string(static_cast<int>(random()) >> (random() % 30));
            const std::string m =
                std::to_string((static_cast<int>(random()) >> (random() % 30)) | 1);
            const std::string rest = evaluated(ZEval, "(" + n + ")%(" + m + ")");
            QCOMPARE(evaluated(ZEval, "(" + n + ")-(" + m + ")*((" + n + ")/(" + m + "))"), rest);
            QVERIFY(mpz_class(rest) >= 0 && mpz_class(rest) < abs(mpz_class(m)));
        }
    }
};

QTEST_GUILESS_MAIN(TestExpression)
#include "tst_Expression.moc"
