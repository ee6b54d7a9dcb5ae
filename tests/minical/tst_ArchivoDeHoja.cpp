// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/DocumentoDeHoja.h"
#include "tests/minical/HojaDePrueba.h"
#include "tests/shell/support/Entorno.h"

#include <QRandomGenerator>

using namespace Qt::Literals::StringLiterals;
using Motivo = FalloDeHoja::Motivo;
Q_DECLARE_METATYPE(FalloDeHoja::Motivo)

namespace {

QByteArray conLineas(const QByteArray &lineas)
{
    return "MiniCal 1\n" + lineas;
}

/// An expression that now and then uses other cells, fails, or has signs that a line cannot hold.
QString expresionAlAzar(QRandomGenerator &azar)
{
    const QString nombre = NombreCelda({azar.bounded(1, 100), azar.bounded(1, 26)});
    const QStringList formas{QString::number(azar.generate()),
                             u"%1/%2"_s.arg(azar.bounded(1000)).arg(azar.bounded(1, 50)),
                             nombre + u"+1/7"_s,
                             nombre,
                             u"-2^%1"_s.arg(azar.bounded(500)),
                             u"1\t+\\2\r\n"_s,
                             u"«ñ→𝔽»"_s,
                             u"  "_s,
                             u"1/0"_s};
    return formas[azar.bounded(static_cast<int>(formas.size()))];
}

} // namespace

/// The file of a sheet, without a window.
class TestArchivoDeHoja : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    void idaYVuelta()
    {
        QRandomGenerator azar(4);
        for (int prueba = 0; prueba < 200; ++prueba) {
            HojaDeCalculo hoja;
            for (int n = azar.bounded(40); n > 0; --n) {
                const Celda celda{azar.bounded(1, 100), azar.bounded(1, 26)};
                hoja.finDeEdicion(celda, expresionAlAzar(azar));
                if (azar.bounded(4) == 0)
                    hoja.ValorDecimal(celda);
            }
            HojaGuardada guardada = contenidoDe(hoja);
            for (int n = azar.bounded(4); n > 0; --n)
                guardada.anchos.insert(azar.bounded(1, 26), azar.bounded(1, 400));

            const QByteArray bytes = escribeHoja(guardada);
            const auto leida = leeHoja(bytes);
            QVERIFY(std::holds_alternative<HojaGuardada>(leida));
            QCOMPARE(std::get<HojaGuardada>(leida), guardada);

            // The sheet that is read goes on like the one that was written.
            HojaDeCalculo otra;
            otra.carga(std::get<HojaGuardada>(leida));
            QCOMPARE(contenidoDe(otra).celdas, guardada.celdas);
            QVERIFY(!otra.historial().modificado() && !otra.historial().puedeDeshacer());
            const QString usaVarias = u"A1+A12+B2+B22+Y9"_s;
            QCOMPARE(otra.SustituirVariables(usaVarias), hoja.SustituirVariables(usaVarias));
        }
    }

    /// The copy of unsaved work brings sheet, widths and path back, whatever signs these have.
    void copiaDeLoNoGuardado()
    {
        const QTemporaryDir carpeta;
        const QString ruta = carpeta.filePath(u"mi\nhoja 100% ñ.minical"_s);
        const DocumentoDeHoja::Anchos anchos{{2, 40}};
        HojaDeCalculo hoja;
        DocumentoDeHoja documento(hoja);
        entra(hoja, u"A1", u"1/8"_s);
        QVERIFY(documento.guarda(ruta, anchos));
        QCOMPARE(documento.copia(anchos), QByteArray());
        entra(hoja, u"A2", u"A1*2"_s);
        const QByteArray copia = documento.copia(anchos);

        HojaDeCalculo otra;
        DocumentoDeHoja recuperado(otra);
        QCOMPARE(std::get<DocumentoDeHoja::Anchos>(recuperado.recupera(copia)), anchos);
        QCOMPARE(recuperado.ruta(), ruta);
        QCOMPARE(contenidoDe(otra), contenidoDe(hoja));
        QVERIFY(recuperado.modificado() && recuperado.copia(anchos) == copia);
        // A bad one changes nothing.
        for (const QByteArray &mala : {copia.chopped(1), "\n"_ba, "x"_ba})
            QVERIFY(std::holds_alternative<FalloDeHoja>(recuperado.recupera(mala)));
        QCOMPARE(recuperado.copia(anchos), copia);
    }

    void queSeEscribe()
    {
        HojaDeCalculo hoja;
        entra(hoja, u"B2", u"1/8"_s);
        entra(hoja, u"A1", u"B2*\t8"_s);
        entra(hoja, u"C1", u"("_s);
        hoja.ValorDecimal(en(u"B2"));
        HojaGuardada guardada = contenidoDe(hoja);
        guardada.anchos.insert(2, 40);
        QCOMPARE(escribeHoja(guardada), "MiniCal 1\nancho\tB\t40\nB2\t1/8\t0,125\t1/8\n"
                                        "A1\tB2*\\t8\t1\nC1\t(\tError\nfin\t3\n"_ba);
    }

    void seAcepta_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty sheet") << conLineas("fin\t0\n");
        QTest::newRow("CR LF and a byte-order mark")
            << "\xEF\xBB\xBFMiniCal 1\r\nA1\t1\t1\r\nfin\t1\r\n"_ba;
        QTest::newRow("blank lines at the end") << conLineas("fin\t0\n\n \n");
    }
    void seAcepta()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(std::holds_alternative<HojaGuardada>(leeHoja(bytes)));
    }

    void seRechaza_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<Motivo>("motivo");
        QTest::addColumn<int>("linea");
        const auto fila = [](const char *nombre, const QByteArray &bytes, Motivo motivo,
                             int linea) { QTest::newRow(nombre) << bytes << motivo << linea; };
        fila("nothing", {}, Motivo::NoEsUnaHoja, 0);
        fila("something else", "PK\x03\x04\n", Motivo::NoEsUnaHoja, 1);
        fila("binary without lines", QByteArray(5000, '\xff'), Motivo::NoEsUnaHoja, 0);
        fila("version 0", "MiniCal 0\nfin\t0\n", Motivo::NoEsUnaHoja, 1);
        fila("next version", "MiniCal 2\nfin\t0\n", Motivo::VersionPosterior, 1);
        fila("no end", conLineas("A1\t1\t1\n"), Motivo::Cortado, 2);
        fila("cut within the end", conLineas("A1\t1\t1\nfin\t1"), Motivo::Cortado, 2);
        fila("a cell is missing", conLineas("A1\t1\t1\nfin\t2\n"), Motivo::LineaIncorrecta, 3);
        fila("something behind the end", conLineas("fin\t0\nA1\t1\t1\n"), Motivo::LineaIncorrecta,
             2);
        fila("not UTF-8", conLineas("A1\t\xff\tError\nfin\t1\n"), Motivo::NoEsTexto, 2);
        fila("cell twice", conLineas("A1\t1\t1\nA1\t2\t2\nfin\t2\n"), Motivo::CeldaRepetida, 3);
        const auto celda = [&](const char *nombre, const QByteArray &linea) {
            fila(nombre, conLineas(linea + "\nfin\t1\n"), Motivo::LineaIncorrecta, 2);
        };
        celda("no such cell", "Z1\t1\t1");
        celda("header cell", "A0\t1\t1");
        celda("empty line", "");
        celda("no result field", "A1\t1");
        celda("too many fields", "A1\t1/2\t0,5\t1/2\tx");
        celda("unknown escape", "A1\t\\x\tError");
        celda("escape cut off", "A1\t1\\\tError");
        celda("no expression", "A1\t\t1");
        celda("value without an expression", "A1\t  \t1");
        celda("result that is no number", "A1\t1\tcosa");
        celda("letter in a value", "A1\t1\t0,5\tA1");
        celda("decimal without its exact value", "A1\t1/2\t0,5");
        celda("value that is the result", "A1\t1\t1\t1");
        celda("digits of another script", "A1\t1\t٣");
        celda("result too long", "A1\t1\t" + QByteArray(24'577, '1'));
        celda("expression too long", "A1\t" + QByteArray(100'001, '1') + "\tError");
        celda("width of no column", "ancho\tZ\t10");
        celda("width out of bounds", "ancho\tA\t99999");
        celda("width that is no number", "ancho\tA\t0x10");
        celda("end that is no number", "fin\t-0");
    }
    void seRechaza()
    {
        QFETCH(QByteArray, bytes);
        const auto leida = leeHoja(bytes);
        QVERIFY(std::holds_alternative<FalloDeHoja>(leida));
        QTEST(std::get<FalloDeHoja>(leida).motivo, "motivo");
        QTEST(std::get<FalloDeHoja>(leida).linea, "linea");
    }
};

NUMORA_TEST_MAIN(TestArchivoDeHoja)
#include "tst_ArchivoDeHoja.moc"
