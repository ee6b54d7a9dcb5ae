// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/ExplicacionDeCelda.h"
#include "tests/Tabla.h"
#include "tests/minical/HojaDePrueba.h"
#include "tests/shell/support/Entorno.h"

/// What the sheet says about a cell beside its text.
class TestExplicacionDeCelda : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    void motivos_data()
    {
        filasDeTexto<QString, QString>(uR"(
            empty cell | A1+C7 | C7 está vacía. || last column | Y7+1 | Y7 está vacía.
            cell with an error | A1*B1 | B1 tiene un error.
            name behind another | A12+C7 | C7 está vacía.
            itself | D4+1 | La celda se usa a sí misma
            small letters | 2*a1 | Las celdas se escriben con mayúscula: A1.
            no name in a word | xa1 | No se entiende «xa»
            not closed | 2*(3+[4] | Falta cerrar «(». || not opened | 2*3) | Sobra «)»
            other kind | (2*3] | Sobra «]»
            begins with mod | mod 5 | «mod» necesita un número delante
            blank before mod | " Mod 5" | «mod» necesita un número delante
            commas | mcd(12,18) | Los argumentos se separan con punto y coma
            a good comma | 1,5/0 | Divide entre 0.
            division by a cell | 1/(A1-5) | Divide entre 0.
            mod 0 | 5 mod 0 | Divide entre 0. || ** | 2**3 | La potencia se escribe «^»
            // | 7//2 | Falta un número delante de «/». || exponent | 1e3 | No se entiende «e»
            thousands | 1.000.000 | «1.000.000» no es un número
            blank | 5 6 | Falta una operación delante de «6». || pi | 2*π | No se entiende «π»
            beyond 16 bits | 2*𝔽 | No se entiende «𝔽» || less | 1<2 | No se entiende «<»
            end | 2*A1- | Falta un número al final.
            separator | 1;2 | «;» no puede ir en ese lugar.
            arguments | abs(1;2) | «abs» lleva sus argumentos
            fraction | 7/2 mod 3 | El resto, el factorial
            negative | (A1-6)! | El factorial o la función
            too large | 9^9^9 | Da un número demasiado largo.
            too slow | sigprimo(10^9000) | Calcularlo llevaría)"_s);
    }
    void motivos()
    {
        const auto [expresion, empieza] = estaFila<QString, QString>();
        HojaCon hoja{{u"A1", u"5"}, {u"B1", u"("}};
        QCOMPARE(entra(hoja, u"D4", expresion), u"Error"_s);
        const QString motivo = explicacionDeCelda(hoja, en(u"D4"));
        QVERIFY2(motivo.startsWith(empieza), qPrintable(motivo));
        QVERIFY(!motivo.contains(u"F9"));
    }

    /// Nothing is recalculated unasked, so the cause may be gone while the error is still there.
    void laCausaHaPasado()
    {
        const HojaCon hoja{{u"B1", u"1/A1"}, {u"A1", u"2"}};
        QCOMPARE(resultado(hoja, u"B1"), u"Error"_s);
        QVERIFY(explicacionDeCelda(hoja, en(u"B1")).contains(u"recalcule esta (F9)"_s));
    }

    void valoresQueNoCaben()
    {
        HojaCon hoja{{u"A1", u"10^20000"}};
        entra(hoja, u"A3", u"(A1)"_s.repeated(60));
        QCOMPARE(resultado(hoja, u"A3"), u"Error"_s);
        QCOMPARE(explicacionDeCelda(hoja, en(u"A3")),
                 u"Con los valores de las celdas, la expresión es demasiado larga."_s);
    }

    void longitudes_data()
    {
        filasDeTexto<QString, QString>(uR"(
            empty |  | || short | 2^10 | || long | 2^4000 | Cifras: 1.205
            negative | -10^20 | Cifras: 21
            fraction | -10^20/3 | Cifras del numerador: 21 · del denominador: 1)"_s);
    }
    void longitudes()
    {
        const auto [expresion, explicacion] = estaFila<QString, QString>();
        HojaDeCalculo hoja;
        entra(hoja, u"A1", expresion);
        QCOMPARE(explicacionDeCelda(hoja, en(u"A1")), explicacion);
        QCOMPARE(explicacionDeCelda(hoja, Celda()), QString());
    }
};

NUMORA_TEST_MAIN(TestExplicacionDeCelda)
#include "tst_ExplicacionDeCelda.moc"
