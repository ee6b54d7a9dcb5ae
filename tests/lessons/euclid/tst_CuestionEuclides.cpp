// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/euclid/CuestionEuclides.h"
#include "tests/Tabla.h"

class TestCuestionEuclides : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { IniciaBignum(100); }

    /// Each answer comes after a right one, (34, 21, 7), whose count stays where nothing is
    /// divided: no word may call it right then.
    void juicios_data()
    {
        filasDeTexto<QString, QString, QString, bool, QString>(uR"(
            seven | 34 | 21 | 7 | yes | Correcto
            other way round | 21 | 34 | 7 | no | No es correcto (iteraciones: 8)
            44 | 1836311903 | 1134903170 | 50-6 | yes | Correcto
            n is rounded | 34 | 21 | 27/4 | yes | Correcto
            a half goes to even | 34 | 21 | 13/2 | no | No es correcto (iteraciones: 7)
            n is negative | 34 | 21 | -10^30 | no | No es correcto (iteraciones: 7)
            least numbers | -922337203685477 | -1 | 1 | yes | Correcto
            b is 0 | 5 | 0 | 7 | yes | Faltan datos: b es 0.
            a is 0 | 0 | 9 | 7 | yes | Faltan datos: a es 0.
            words | abc | 1/2 | 7 | yes | Faltan datos: a no se puede calcular; b no es un \
              número entero.
            blank |  | " " |  | no | Faltan datos: a está en blanco; b está en blanco; n está \
              en blanco.
            out of range | 10^300 | -10^300 | 101 | no | Faltan datos: a es demasiado grande; \
              b es demasiado pequeño; n es demasiado grande.
            n is a word | 34 | 21 | siete | no | Faltan datos: n no se puede calcular.)"_s);
    }
    void juicios()
    {
        const auto [a, b, n, coincide, palabra] =
            estaFila<QString, QString, QString, bool, QString>();
        CuestionEuclides cuestion;
        cuestion.juzga(u"34"_s, u"21"_s, u"7"_s);
        const auto juicio = cuestion.juzga(a, b, n);
        QCOMPARE(juicio.coincide, coincide);
        QCOMPARE(juicio.palabra, palabra);
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
