// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/ExplicacionDeCelda.h"
#include "tests/minical/HojaDePrueba.h"
#include "tests/shell/support/Entorno.h"

using namespace Qt::Literals::StringLiterals;

/// What the sheet says about a cell beside its text.
class TestExplicacionDeCelda : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    void motivos_data()
    {
        QTest::addColumn<QString>("expresion");
        QTest::addColumn<QString>("empieza");
        QTest::newRow("empty cell") << u"A1+C7"_s << u"C7 está vacía."_s;
        QTest::newRow("last column") << u"Y7+1"_s << u"Y7 está vacía."_s;
        QTest::newRow("cell with an error") << u"A1*B1"_s << u"B1 tiene un error."_s;
        QTest::newRow("name behind another") << u"A12+C7"_s << u"C7 está vacía."_s;
        QTest::newRow("itself") << u"D4+1"_s << u"La celda se usa a sí misma"_s;
        QTest::newRow("small letters")
            << u"2*a1"_s << u"Las celdas se escriben con mayúscula: A1."_s;
        QTest::newRow("no name in a word") << u"xa1"_s << u"No se entiende «xa»"_s;
        QTest::newRow("not closed") << u"2*(3+[4]"_s << u"Falta cerrar «(»."_s;
        QTest::newRow("not opened") << u"2*3)"_s << u"Sobra «)»"_s;
        QTest::newRow("other kind") << u"(2*3]"_s << u"Sobra «]»"_s;
        QTest::newRow("begins with mod") << u"mod 5"_s << u"«mod» necesita un número delante"_s;
        QTest::newRow("blank before mod") << u" Mod 5"_s << u"«mod» necesita un número delante"_s;
        QTest::newRow("commas") << u"mcd(12,18)"_s
                                << u"Los argumentos se separan con punto y coma"_s;
        QTest::newRow("a good comma") << u"1,5/0"_s << u"Divide entre 0."_s;
        QTest::newRow("division by a cell") << u"1/(A1-5)"_s << u"Divide entre 0."_s;
        QTest::newRow("mod 0") << u"5 mod 0"_s << u"Divide entre 0."_s;
        QTest::newRow("**") << u"2**3"_s << u"La potencia se escribe «^»"_s;
        QTest::newRow("//") << u"7//2"_s << u"Falta un número delante de «/»."_s;
        QTest::newRow("exponent") << u"1e3"_s << u"No se entiende «e»"_s;
        QTest::newRow("thousands") << u"1.000.000"_s << u"«1.000.000» no es un número"_s;
        QTest::newRow("blank") << u"5 6"_s << u"Falta una operación delante de «6»."_s;
        QTest::newRow("pi") << u"2*π"_s << u"No se entiende «π»"_s;
        QTest::newRow("beyond 16 bits") << u"2*𝔽"_s << u"No se entiende «𝔽»"_s;
        QTest::newRow("less") << u"1<2"_s << u"No se entiende «<»"_s;
        QTest::newRow("end") << u"2*A1-"_s << u"Falta un número al final."_s;
        QTest::newRow("separator") << u"1;2"_s << u"«;» no puede ir en ese lugar."_s;
        QTest::newRow("arguments") << u"abs(1;2)"_s << u"«abs» lleva sus argumentos"_s;
        QTest::newRow("fraction") << u"7/2 mod 3"_s << u"El resto, el factorial"_s;
        QTest::newRow("negative") << u"(A1-6)!"_s << u"El factorial o la función"_s;
        QTest::newRow("too large") << u"9^9^9"_s << u"Da un número demasiado largo."_s;
        QTest::newRow("too slow") << u"sigprimo(10^9000)"_s << u"Calcularlo llevaría"_s;
    }
    void motivos()
    {
        QFETCH(QString, expresion);
        QFETCH(QString, empieza);
        HojaDeCalculo hoja;
        entra(hoja, u"A1", u"5"_s);
        entra(hoja, u"B1", u"("_s);
        QCOMPARE(entra(hoja, u"D4", expresion), u"Error"_s);
        const QString motivo = explicacionDeCelda(hoja, en(u"D4"));
        QVERIFY2(motivo.startsWith(empieza), qPrintable(motivo));
        QVERIFY(!motivo.contains(u"F9"));
    }

    /// Nothing is recalculated unasked, so the cause may be gone while the error is still there.
    void laCausaHaPasado()
    {
        HojaDeCalculo hoja;
        entra(hoja, u"B1", u"1/A1"_s);
        entra(hoja, u"A1", u"2"_s);
        QCOMPARE(resultado(hoja, u"B1"), u"Error"_s);
        QVERIFY(explicacionDeCelda(hoja, en(u"B1")).contains(u"recalcule esta (F9)"_s));
    }

    void valoresQueNoCaben()
    {
        HojaDeCalculo hoja;
        entra(hoja, u"A1", u"10^20000"_s);
        entra(hoja, u"A3", u"(A1)"_s.repeated(60));
        QCOMPARE(resultado(hoja, u"A3"), u"Error"_s);
        QCOMPARE(explicacionDeCelda(hoja, en(u"A3")),
                 u"Con los valores de las celdas, la expresión es demasiado larga."_s);
    }

    void longitudes_data()
    {
        QTest::addColumn<QString>("expresion");
        QTest::addColumn<QString>("explicacion");
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("short") << u"2^10"_s << QString();
        QTest::newRow("long") << u"2^4000"_s << u"Cifras: 1.205"_s;
        QTest::newRow("negative") << u"-10^20"_s << u"Cifras: 21"_s;
        QTest::newRow("fraction") << u"-10^20/3"_s
                                  << u"Cifras del numerador: 21 · del denominador: 1"_s;
    }
    void longitudes()
    {
        QFETCH(QString, expresion);
        HojaDeCalculo hoja;
        entra(hoja, u"A1", expresion);
        QTEST(explicacionDeCelda(hoja, en(u"A1")), "explicacion");
        QCOMPARE(explicacionDeCelda(hoja, Celda()), QString());
    }
};

NUMORA_TEST_MAIN(TestExplicacionDeCelda)
#include "tst_ExplicacionDeCelda.moc"
