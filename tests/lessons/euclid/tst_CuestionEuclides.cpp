// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/euclid/CuestionEuclides.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestCuestionEuclides : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { IniciaBignum(100); }

    /// Each answer comes after a right one, (34, 21, 7), whose count stays where nothing is
    /// divided: no word may call it right then.
    void juicios_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<QString>("n");
        QTest::addColumn<bool>("coincide");
        QTest::addColumn<QString>("palabra");
        const auto fila = [](const char *nombre, const QString &a, const QString &b,
                             const QString &n, bool coincide, const QString &palabra) {
            QTest::newRow(nombre) << a << b << n << coincide << palabra;
        };
        const QString bien = u"Correcto"_s, mal = u"No es correcto (iteraciones: %1)"_s;
        const QString faltan = u"Faltan datos: %1."_s;
        fila("seven", u"34"_s, u"21"_s, u"7"_s, true, bien);
        fila("other way round", u"21"_s, u"34"_s, u"7"_s, false, mal.arg(8));
        fila("44", u"1836311903"_s, u"1134903170"_s, u"50-6"_s, true, bien);
        fila("n is rounded", u"34"_s, u"21"_s, u"27/4"_s, true, bien);
        fila("a half goes to even", u"34"_s, u"21"_s, u"13/2"_s, false, mal.arg(7));
        fila("n is negative", u"34"_s, u"21"_s, u"-10^30"_s, false, mal.arg(7));
        fila("least numbers", u"-922337203685477"_s, u"-1"_s, u"1"_s, true, bien);
        fila("b is 0", u"5"_s, u"0"_s, u"7"_s, true, faltan.arg(u"b es 0"_s));
        fila("a is 0", u"0"_s, u"9"_s, u"7"_s, true, faltan.arg(u"a es 0"_s));
        fila("words", u"abc"_s, u"1/2"_s, u"7"_s, true,
             faltan.arg(u"a no se puede calcular; b no es un número entero"_s));
        fila("blank", {}, u" "_s, {}, false,
             faltan.arg(u"a está en blanco; b está en blanco; n está en blanco"_s));
        fila("out of range", u"10^300"_s, u"-10^300"_s, u"101"_s, false,
             faltan.arg(u"a es demasiado grande; b es demasiado pequeño; n es demasiado grande"_s));
        fila("n is a word", u"34"_s, u"21"_s, u"siete"_s, false,
             faltan.arg(u"n no se puede calcular"_s));
    }
    void juicios()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(QString, n);
        CuestionEuclides cuestion;
        cuestion.juzga(u"34"_s, u"21"_s, u"7"_s);
        const auto juicio = cuestion.juzga(a, b, n);
        QTEST(juicio.coincide, "coincide");
        QTEST(juicio.palabra, "palabra");
        QCOMPARE(juicio.faltanDatos, juicio.palabra.startsWith(u"Faltan"));
    }

    /// Nothing was ever divided, and three blank fields ask for no division.
    void enBlancoAlAbrir()
    {
        const auto juicio = CuestionEuclides().juzga({}, {}, {});
        QVERIFY(juicio.coincide && juicio.faltanDatos);
    }
};

QTEST_GUILESS_MAIN(TestCuestionEuclides)
#include "tst_CuestionEuclides.moc"
