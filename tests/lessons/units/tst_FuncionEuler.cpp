// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/units/FuncionEuler.h"
#include "lessons/units/InversoGrande.h"
#include "tests/shell/support/Entorno.h"

#include <numeric>

using namespace Qt::Literals::StringLiterals;

/// Euler's function and inverses of numbers of any size.
class TestFuncionEuler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comoSeCuentan()
    {
        for (int n = 1; n <= 400; ++n) {
            int primosConN = 0;
            for (int a = 1; a <= n; ++a)
                primosConN += std::gcd(a, n) == 1 ? 1 : 0;
            QCOMPARE(FuncionEuler(QString::number(n)).valor(), QString::number(primosConN));
        }
    }

    void comoElServicio_data()
    {
        QTest::addColumn<QString>("expresion");
        QTest::newRow("hundred and fifty-eight digits") << u"100!"_s;
        QTest::newRow("prime power") << u"(2^61-1)^7"_s;
        QTest::newRow("large prime factor") << u"(2^1279-1)*3^50"_s;
        QTest::newRow("two primes of the same size") << u"(10^12+39)*(10^12+61)"_s;
        QTest::newRow("as many primes as fit") << u"223092870*29*31*37*41*43*47*53"_s;
    }
    void comoElServicio()
    {
        QFETCH(QString, expresion);
        const QString n = Evalua(expresion);
        const FuncionEuler euler(n);
        QCOMPARE(euler.valor(), FiEuler(n));
        QVERIFY(euler.compuesto().isEmpty());
        // What is shown can be typed into a field again.
        const auto teclea = [](QString texto) {
            return Evalua(texto.replace(u" · "_s, u"*"_s).replace(u'·', u'*').replace(u'−', u'-'));
        };
        QCOMPARE(teclea(euler.factorizacion()), n);
        QCOMPARE(teclea(euler.formula()), euler.valor());
    }

    void pasos_data()
    {
        QTest::addColumn<QString>("n");
        QTest::addColumn<QString>("pasos");
        QTest::newRow("one") << u"1"_s << u"n = 1\nφ(n) = 1"_s;
        QTest::newRow("prime") << u"13"_s << u"n = 13\nφ(n) = 13 − 1\nφ(n) = 12"_s;
        QTest::newRow("square") << u"49"_s << u"n = 7^2\nφ(n) = 7·(7 − 1)\nφ(n) = 42"_s;
        QTest::newRow("several") << u"360"_s
                                 << u"n = 2^3 · 3^2 · 5\nφ(n) = φ(2^3) · φ(3^2) · φ(5)\n"
                                    u"φ(n) = 2^2·(2 − 1) · 3·(3 − 1) · (5 − 1)\n"
                                    u"φ(n) = 4 · 6 · 4\nφ(n) = 96"_s;
    }
    void pasos()
    {
        QFETCH(QString, n);
        QTEST(FuncionEuler(n).pasos(), "pasos");
    }

    void inversos_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("n");
        QTest::addColumn<QString>("mcd");
        QTest::newRow("small") << u"7"_s << u"26"_s << u"1"_s;
        QTest::newRow("negative") << u"-7"_s << u"26"_s << u"1"_s;
        QTest::newRow("beyond n") << u"10^40+7"_s << u"10^6"_s << u"1"_s;
        QTest::newRow("no unit") << u"10^30-1"_s << u"10^60-1"_s
                                 << u"999999999999999999999999999999"_s;
        QTest::newRow("zero") << u"0"_s << u"12"_s << u"12"_s;
        QTest::newRow("one element") << u"5"_s << u"1"_s << u"1"_s;
        QTest::newRow("hundreds of digits") << u"2^521-1"_s << u"150!"_s << u"1"_s;
    }
    void inversos()
    {
        QFETCH(QString, a);
        QFETCH(QString, n);
        const InversoGrande resultado = invierte(Evalua(QString(a)), Evalua(QString(n)));
        QTEST(resultado.mcd, "mcd");
        QCOMPARE(resultado.inverso.isEmpty(), resultado.mcd != u"1"_s);
        if (!resultado.inverso.isEmpty()) {
            const QString sobra = u"(%1)*%2-1"_s.arg(a, resultado.inverso);
            QCOMPARE(Modulo(Evalua(QString(sobra)), Evalua(QString(n))), u"0"_s);
            QVERIFY(EsMayor(resultado.inverso, Evalua(QString(n))));
        }
    }

    void moduloDelEjemplo()
    {
        for (const int cifras : {12, 13, 40, 200, 200, 200}) {
            const QString n = moduloFacil(cifras);
            QCOMPARE(n.size(), cifras);
            const FuncionEuler euler(n);
            QCOMPARE(euler.factores().size(), 3);
            QVERIFY(!euler.valor().isEmpty());
        }
    }
};

NUMORA_TEST_MAIN(TestFuncionEuler)
#include "tst_FuncionEuler.moc"
