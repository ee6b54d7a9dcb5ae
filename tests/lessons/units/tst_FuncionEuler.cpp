// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/units/FuncionEuler.h"
#include "lessons/units/InversoGrande.h"
#include "tests/Tabla.h"
#include "tests/shell/support/Entorno.h"

#include <numeric>

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
        filasDeTexto<QString>(uR"(
            hundred and fifty-eight digits | 100!
            prime power                    | (2^61-1)^7
            large prime factor             | (2^1279-1)*3^50
            two primes of the same size    | (10^12+39)*(10^12+61)
            as many primes as fit          | 223092870*29*31*37*41*43*47*53)"_s);
    }
    void comoElServicio()
    {
        QString expresion = estaFila<QString>();
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
        filasDeTexto<QString, QString>(uR"(
            one | 1 | n = 1\nφ(n) = 1
            prime | 13 | n = 13\nφ(n) = 13 − 1\nφ(n) = 12
            square | 49 | n = 7^2\nφ(n) = 7·(7 − 1)\nφ(n) = 42
            several | 360 | n = 2^3 · 3^2 · 5\nφ(n) = φ(2^3) · φ(3^2) · φ(5)\nφ(n) = 2^2·(2 − \
              1) · 3·(3 − 1) · (5 − 1)\nφ(n) = 4 · 6 · 4\nφ(n) = 96)"_s);
    }
    void pasos()
    {
        const auto [n, pasos] = estaFila<QString, QString>();
        QCOMPARE(FuncionEuler(n).pasos(), pasos);
    }

    void inversos_data()
    {
        filasDeTexto<QString, QString, QString>(uR"(
            small              | 7       | 26      | 1
            negative           | -7      | 26      | 1
            beyond n           | 10^40+7 | 10^6    | 1
            no unit            | 10^30-1 | 10^60-1 | 999999999999999999999999999999
            zero               | 0       | 12      | 12
            one element        | 5       | 1       | 1
            hundreds of digits | 2^521-1 | 150!    | 1)"_s);
    }
    void inversos()
    {
        const auto [a, n, mcd] = estaFila<QString, QString, QString>();
        const InversoGrande resultado = invierte(Evalua(QString(a)), Evalua(QString(n)));
        QCOMPARE(resultado.mcd, mcd);
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
