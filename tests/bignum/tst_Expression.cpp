// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/bignum.h"

#include "tests/Tabla.h"

#include <array>
#include <gmpxx.h>
#include <map>
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
        const int kind = pick(8);
        if (kind < 5)
            return binary("+-*/%"[kind], depth, kind < 2 ? 1 : 2);
        return kind == 5 ? implicitProduct(depth) : kind == 6 ? power(depth) : negated(depth);
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
        constexpr std::array texts{"0", "1", "2", "3", "2!", "2^1^3", "-1", "-2", "-2^0", "+3"};
        constexpr std::array values{0, 1, 2, 3, 2, 2, -1, -2, -1, 3};
        const Part base = part(depth - 1);
        const auto chosen = static_cast<std::size_t>(pick(10));
        const int exponent = values.at(chosen);
        const std::string text = bracketed(base, 5) + "^" + texts.at(chosen);
        if (!base.value || (exponent < 0 && *base.value == 0))
            return {text, {}, 4};
        mpq_class value = 1;
        for (int i = 0; i < std::abs(exponent); ++i)
            value *= *base.value;
        if (exponent < 0)
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
        filasDeTexto<QByteArray, QByteArray, QByteArray>(uR"(
order: || 0+(7 % 3) | 1 | 1 || 10-4-3 | 3 | 3 || 100/10/5 | 2 | 2 || 2^3^2 | 512 | 512
order: || 2^3! | 64 | 64 || 3!^2 | 36 | 36 || 3!! | 720 | 720
signs: || -2^2 | -4 | -4 || 2^-1 | fails | 1/2 || (-1)^-3 | -1 | -1 || 2--+-3 | -1 | -1
signs: || 0^0 | 1 | 1 || 0^-1 | fails | fails
factorials: || (-1)! | fails | fails || (1/2)! | 1 | fails
implicit products: || (5)2 | 10 | 10 || 2(3)[4]{5} | 120 | 120 || 6/2(3) | 9 | 9
implicit products: || (2)mcd(4;6) | 4 | 4
no products: || 2mcd(4;6) | fails | fails || 5 5 | fails | fails
Euclid: || -7/2 | -4 | -7/2 || -7%2 | 1 | 1 || 7/-2 | -3 | -7/2 || 7%-2 | 1 | 1 || -7/-2 | 4 | 7/2
Euclid: || 7/2%2 | 1 | fails
by zero: || 1/(2-2) | fails | fails || 1%0 | fails | fails || 2^5%0 | fails | fails
modular powers: || 3^1000000000000%1000007 | 273158 | 273158 || -3^2%7 | 5 | 5 || -3^100%7 | 3 | 3
modular powers: || 3^5%-7 | 5 | 5 || 2*3^4%7 | 1 | 1
decimals: || 1,5+.25 | fails | 7/4 || 2.0*3,00 | 6 | 6 || 6/4-1/2 | 1 | 1 || 2. | fails | fails
decimals: || 1.2.3 | fails | fails
roots: || raiz(99)+SQRT[100] | 19 | 19 || raíz(9)+RAÍZ(16) | 7 | 7 || raiz(-1) | fails | fails
roots: || raiz(1/4) | 0 | fails
divisors: || gcd(12;18;27) | 3 | 3 || Mcm(4;6;10) | 60 | 60 || fi(36)+phi(97) | 108 | 108
two primes of 39 digits: || fi(nextprime(10^38)*nextprime(3*10^38)) | fails | fails
sizes: || abs(-3/4) | 1 | 3/4 || min(3;1/2)+max(1/3;1/4) | 0 | 5/6
numbers: || fib(100) | 354224848179261915075 | 354224848179261915075
numbers: || primo(97)+10*isprime(91) | 1 | 1
next primes: || sigprimo(97)+nextprime(-5) | 103 | 103
no functions: || sen(1) | fails | fails || mcd | fails | fails || mcd() | fails | fails
no functions: || abs(1;2) | fails | fails || 1;2 | fails | fails
brackets: || {[(1+2)*3]} | 9 | 9 || ([1)] | fails | fails || (1+2 | fails | fails
brackets: || 1+2) | fails | fails ||  | fails | fails || () | fails | fails
no operators: || 1+ | fails | fails || 1&2 | fails | fails)"_s);
        otraFila<QByteArray, QByteArray, QByteArray>(u"line breaks"_s, "1\r\n+\t2"_ba, "3"_ba,
                                                     "3"_ba);
        otraFila<QByteArray, QByteArray, QByteArray>(u"Windows-1252"_s, "ra\xEDz(9)+RA\xCDZ(16)"_ba,
                                                     "7"_ba, "7"_ba);
    }
    void values()
    {
        const auto [expression, integer, rational] = estaFila<QByteArray, QByteArray, QByteArray>();
        const std::string text = expression.toStdString();
        QCOMPARE(QByteArray::fromStdString(evaluated(ZEval, text)), integer);
        QCOMPARE(QByteArray::fromStdString(evaluated(QEval, text)), rational);
    }

    void refused_data()
    {
        filasDeTexto<QByteArray>(uR"(
9^9^9^9 || 10^100000 || 99999! || 9!! || fib(10^9) || 2^-9^9^9 || (((((99!^9)^9)^9)^9)^9)
7^(10^24000)%(10^24000+1) || sigprimo(10^20000) || primo(10^20000+1))"_s);
        const auto row = [](const QString &name, const std::string &expression) {
            otraFila(name, QByteArray::fromStdString(expression));
        };
        row(u"100 000 brackets"_s, repeated("(", 100'000));
        row(u"100 000 signs"_s, repeated("-", 100'000) + "1");
        row(u"100 000 powers"_s, repeated("1^", 100'000) + "1");
        row(u"100 000 calls"_s, repeated("abs(", 100'000));
        row(u"text of a megabyte"_s, repeated("1+", 500'001) + "1");
        row(u"arguments beyond memory"_s, "max(" + repeated("2^80000;", 120'000) + "1)");
    }
    void refused()
    {
        const QByteArray expression = estaFila<QByteArray>();
        QCOMPARE(evaluated(ZEval, expression.toStdString()), "fails");
        QCOMPARE(evaluated(QEval, expression.toStdString()), "fails");
    }

    void faults_data()
    {
        filasDeTexto<QByteArray, QByteArray, QByteArray>(uR"(
1/2 | none | || 2**3 | operand | * || 2+ | operand | ||  | operand | || 5 6 | operator | 6
1.000.000 | operator | .000 || (5 6) | operator | 6 || 2) | misplaced | ) || (2] | misplaced | ]
1;2 | misplaced | ; || 1e3 | unknown | e || 1<2 | unknown | < || 5. | unknown | 5.
seno(1) | unknown | seno || 1+fi | arguments | fi || raiz(1;2) | arguments | raiz
1/(2-2) | division | || 5%0 | division | || 2^70%0 | division | || 0^-1 | division |
1/2%3 | whole | || 2^(1/2) | whole | || (-1)! | domain | || raiz(-1) | domain |
fi(0) | domain | || 9^9^9 | large | || 10^24575 | large | || sigprimo(10^20000) | slow |)"_s);
        otraFila<QByteArray, QByteArray, QByteArray>(u"brackets"_s, QByteArray(2000, '('),
                                                     "large"_ba, ""_ba);
    }
    void faults()
    {
        const auto [expression, fault, where] = estaFila<QByteArray, QByteArray, QByteArray>();
        static const std::map<QByteArray, int> names{
            {"none", BIGNUM_NO_FAULT},        {"operand", BIGNUM_MISSING_OPERAND},
            {"misplaced", BIGNUM_MISPLACED},  {"operator", BIGNUM_MISSING_OPERATOR},
            {"unknown", BIGNUM_UNKNOWN},      {"arguments", BIGNUM_BAD_ARGUMENTS},
            {"whole", BIGNUM_NOT_WHOLE},      {"division", BIGNUM_ZERO_DIVISION},
            {"domain", BIGNUM_OUT_OF_DOMAIN}, {"large", BIGNUM_TOO_LARGE},
            {"slow", BIGNUM_TOO_SLOW}};
        int32_t start = -1;
        int32_t length = -1;
        QCOMPARE(int(QEvalFault(expression.constData(), &start, &length)), names.at(fault));
        QCOMPARE(expression.mid(start, length), where);
        QCOMPARE(evaluated(QEval, expression.toStdString()) == "fails", fault != "none");
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
        int32_t place = 0;
        QCOMPARE(QEvalFault(nullptr, &place, &place), -1);
        QCOMPARE(EvalFunction(0, nullptr), 0);
    }

    void randomExpressions()
    {
        using Numbers = RandomExpression::Numbers;
        for (const auto numbers : {Numbers::Integers, Numbers::Rationals}) {
            const auto entry = numbers == Numbers::Integers ? ZEval : QEval;
            int defined = 0;
            for (unsigned seed = 1; seed <= 3000; ++seed) {
                const auto [text, value, strength] = RandomExpression(numbers, seed).part(4);
                const std::string expected = value ? value->get_str() : "fails";
                const std::string actual = evaluated(entry, text);
                QVERIFY2(actual == expected, (text + ": " + actual + ", not " + expected).c_str());
                defined += value ? 1 : 0;
            }
            QVERIFY(defined > 1500);
        }
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
