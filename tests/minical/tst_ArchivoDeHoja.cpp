// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/DocumentoDeHoja.h"
#include "tests/minical/HojaDePrueba.h"
#include "tests/shell/support/Entorno.h"

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
#if defined(Q_OS_WIN) // where no name breaks its line
        const QString ruta = carpeta.filePath(u"mi hoja 100% ñ.minical"_s);
#else
        const QString ruta = carpeta.filePath(u"mi\nhoja 100% ñ.minical"_s);
#endif
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
        HojaCon hoja{{u"B2", u"1/8"}, {u"A1", u"B2*\t8"}, {u"C1", u"("}};
        hoja.ValorDecimal(en(u"B2"));
        HojaGuardada guardada = contenidoDe(hoja);
        guardada.anchos.insert(2, 40);
        QCOMPARE(escribeHoja(guardada), "MiniCal 1\nancho\tB\t40\nB2\t1/8\t0,125\t1/8\n"
                                        "A1\tB2*\\t8\t1\nC1\t(\tError\nfin\t3\n"_ba);
    }

    void seAcepta()
    {
        for (const QByteArray &bytes : {conLineas("fin\t0\n"), conLineas("fin\t0\n\n \n"),
                                        "\xEF\xBB\xBFMiniCal 1\r\nA1\t1\t1\r\nfin\t1\r\n"_ba})
            QVERIFY2(std::holds_alternative<HojaGuardada>(leeHoja(bytes)), bytes.constData());
    }

    void seRechaza_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<Motivo>("motivo");
        QTest::addColumn<int>("linea");
        const auto fila = [](const QByteArray &nombre, const QByteArray &bytes, Motivo motivo,
                             int linea) {
            QTest::newRow(nombre.constData()) << bytes << motivo << linea;
        };
        fila("nothing", {}, Motivo::NoEsUnaHoja, 0);
        fila("something else", "PK\x03\x04\n", Motivo::NoEsUnaHoja, 1);
        fila("binary without lines", QByteArray(5000, '\xff'), Motivo::NoEsUnaHoja, 0);
        fila("version 0", "MiniCal 0\nfin\t0\n", Motivo::NoEsUnaHoja, 1);
        fila("next version", "MiniCal 2\nfin\t0\n", Motivo::VersionPosterior, 1);
        fila("no end", conLineas("A1\t1\t1\n"), Motivo::Cortado, 2);
        fila("cut within the end", conLineas("A1\t1\t1\nfin\t1"), Motivo::Cortado, 2);
        fila("a cell is missing", conLineas("A1\t1\t1\nfin\t2\n"), Motivo::LineaIncorrecta, 3);
        fila("behind the end", conLineas("fin\t0\nA1\t1\t1\n"), Motivo::LineaIncorrecta, 2);
        fila("not UTF-8", conLineas("A1\t\xff\tError\nfin\t1\n"), Motivo::NoEsTexto, 2);
        fila("cell twice", conLineas("A1\t1\t1\nA1\t2\t2\nfin\t2\n"), Motivo::CeldaRepetida, 3);
        // Cells that are none, fields too few, too many or empty, escapes, results, widths, the
        // end.
        for (const QByteArray &linea : {"Z1\t1\t1"_ba,
                                        "A0\t1\t1"_ba,
                                        ""_ba,
                                        "A1\t1"_ba,
                                        "A1\t1/2\t0,5\t1/2\tx"_ba,
                                        "A1\t\\x\tError"_ba,
                                        "A1\t1\\\tError"_ba,
                                        "A1\t\t1"_ba,
                                        "A1\t  \t1"_ba,
                                        "A1\t1\tcosa"_ba,
                                        "A1\t1\t0,5\tA1"_ba,
                                        "A1\t1/2\t0,5"_ba,
                                        "A1\t1\t1\t1"_ba,
                                        "A1\t1\t٣"_ba,
                                        "A1\t1\t" + QByteArray(24'577, '1'),
                                        "A1\t" + QByteArray(100'001, '1') + "\tError",
                                        "ancho\tZ\t10"_ba,
                                        "ancho\tA\t99999"_ba,
                                        "ancho\tA\t0x10"_ba,
                                        "fin\t-0"_ba})
            fila(linea.left(30) + '.', conLineas(linea + "\nfin\t1\n"), Motivo::LineaIncorrecta, 2);
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
