// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModeloFilas.h"
#include "shell/frame/PanelCuestiones.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Aspecto.h"
#include "tests/shell/support/Contraste.h"
#include "tests/shell/support/Entorno.h"

#include <QAbstractItemModelTester>
#include <cmath>

/// Small pieces that lessons are built of.
class TestPiezasDeLeccion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    /// One reader for all types; only a value above the bound has a box as well.
    void enteros()
    {
        const QString menor = u"El menor número permitido es 3."_s;
        const QString mayor = u"El mayor número permitido es 1.000."_s;
        const QString incalculable = u"Lo escrito no es una expresión que se pueda calcular."_s;
        // The value, or why there is none.
        const QList<std::pair<QString, QString>> filas{
            {u"3"_s, u"3"_s},         {u"10^3"_s, u"1000"_s},
            {u" 4 + 4 "_s, u"8"_s},   {u"2"_s, menor},
            {u"-50"_s, menor},        {u"1001"_s, mayor},
            {u"10^40"_s, mayor},      {u"7/2"_s, u"El valor escrito no es un número entero."_s},
            {u"2001/2"_s, mayor},     {u"tres"_s, incalculable},
            {u"1/0"_s, incalculable}, {u" "_s, u"Escriba un número entero."_s}};
        for (const auto &fila : filas) {
            const auto comprueba = [&](const auto &leido, const auto &texto) {
                QCOMPARE(leido ? texto(*leido) : leido.razon().frase(), fila.second);
                QCOMPARE(!Entorno::grabadora().mensajes.isEmpty(), fila.second == mayor);
                Entorno::grabadora().mensajes.clear();
            };
            comprueba(leeEntero(fila.first, 3, 1000), [](int n) { return QString::number(n); });
            comprueba(leeEntero(fila.first, Moneda::deEntero(3), Moneda::deEntero(1000)),
                      [](const Moneda &n) { return n.texto(); });
            comprueba(leeEntero(fila.first, {u"3"_s, u"1000"_s}), [](QString n) { return n; });
        }
    }

    /// A verdict given in one theme can be read in another, in the question as in the field.
    void unVeredictoSigueAlTema()
    {
        QLabel rotulo;
        const auto color = [&] { return rotulo.palette().color(QPalette::WindowText); };
        rotulo.show();
        for (const bool bien : {true, false}) {
            muestraVeredicto(&rotulo, bien, u"x"_s);
            for (const auto tema : {Aspecto::Tema::Oscuro, Aspecto::Tema::Claro}) {
                Aspecto::aplica(tema);
                QTRY_COMPARE(color(), bien ? Aspecto::exito() : Aspecto::error());
                QVERIFY(contraste(color(), QApplication::palette().window().color()) >= 4.5);
            }
        }
        muestraNeutro(&rotulo, u"x"_s);
        Aspecto::aplica(Aspecto::Tema::Oscuro);
        QTRY_COMPARE(color(), QApplication::palette().windowText().color());
        Aspecto::aplica(Aspecto::Tema::Sistema);
    }

    void redondeados()
    {
        QCOMPARE(aEntero16(2.5), std::int16_t{2});
        QCOMPARE(aEntero16(3.5), std::int16_t{4});
        QCOMPARE(aEntero16(-32768.5), std::int16_t{-32768});
        for (const double valor : {32767.5, -32769.0, std::nan("")})
            QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, aEntero16(valor));
        QCOMPARE(aEntero32(2147483646.5), 2147483646);
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, aEntero32(2147483647.5));
    }

    void modeloDeFilas()
    {
        ModeloFilas modelo({u"a"_s, u"b"_s});
        const QAbstractItemModelTester examen(
            &modelo, QAbstractItemModelTester::FailureReportingMode::Fatal);
        modelo.ponColumnasDeTexto({1});
        modelo.ponFilas({{u"1"_s, u"uno"_s}, {u"2"_s}});
        modelo.agrega({u"3"_s, u"tres"_s});
        QCOMPARE(modelo.rowCount(), 3);
        QCOMPARE(modelo.index(2, 1).data().toString(), u"tres"_s);
        // A short row ends in empty cells.
        QCOMPARE(modelo.index(1, 1).data().toString(), QString());
        const auto lado = [&](int columna) {
            return modelo.index(0, columna).data(Qt::TextAlignmentRole).toInt();
        };
        QVERIFY(lado(0) & Qt::AlignRight);
        QVERIFY(lado(1) & Qt::AlignLeft);
        modelo.ponFilas({});
        QCOMPARE(modelo.rowCount(), 0);
    }

    void duraciones()
    {
        for (const QString &fila :
             u"3.124=3,12 ns|999.7=1,00 µs|9.996e3=10,0 µs|123.4e6=123 ms|7200e9=7.200 s"_s.split(
                 u'|'))
            QCOMPARE(textoDeDuracion(fila.section(u'=', 0, 0).toDouble()), fila.section(u'=', 1));
    }

    /// Decimals have a comma on a desktop of any language, and nothing else has.
    void decimalesEnOtroIdioma()
    {
        const QLocale deAntes;
        const auto alFinal = qScopeGuard([&] { QLocale::setDefault(deAntes); });
        QLocale::setDefault(QLocale::C);
        QCOMPARE(textoDeDuracion(5.341e6), u"5,34 ms"_s);
        QCOMPARE(formatoDecimal(-0.25, 3), u"-0,250"_s);
        QCOMPARE(formatoDecimal(1234.4, 0), formatoEntero(1234));
        QCOMPARE(formatoDecimal(-1028457.25, 2), u"-1\u202f028\u202f457,25"_s);
    }

    /// Two sums, of which the second is drawn anew each time.
    void cuestiones()
    {
        int sorteos = 0;
        const auto pideSeis = [](int cuantas) {
            return Cuestion{u"Seis, vez %1"_s.arg(cuantas), u"6"_s, [](const QString &respuesta) {
                                return Juicio{respuesta == u"6", u"Palabra: "_s + respuesta};
                            }};
        };
        PanelCuestiones panel([&] { return pideSeis(0); }, [&] { return pideSeis(++sorteos); },
                              nullptr);
        auto *respuesta = control<QLineEdit>(&panel, u"txtRespuesta_1"_s);
        auto *veredicto = control<QLabel>(&panel, u"lblVeredicto_1"_s);
        auto *comprobar = control<QPushButton>(&panel, u"cmdComprobar_1"_s);
        respuesta->setText(u"   "_s);
        comprobar->click();
        QCOMPARE(veredicto->text(), u"Escriba una respuesta."_s);
        respuesta->setText(u" 6 "_s);
        QCOMPARE(control<QLabel>(&panel, u"lblLeido_1"_s)->text(), u"leo 6"_s);
        comprobar->click();
        QCOMPARE(veredicto->text(), u"✓ Palabra: 6"_s);
        QCOMPARE(control<QLabel>(&panel, u"lblVeredicto_0"_s)->text(), QString());
        // A verdict goes with the answer that it judged.
        respuesta->setText(u"7"_s);
        QCOMPARE(veredicto->text(), QString());
        QTest::keyClick(respuesta, Qt::Key_Return);
        QCOMPARE(veredicto->text(), u"✗ Palabra: 7"_s);
        control<QPushButton>(&panel, u"cmdOtra_1"_s)->click();
        QCOMPARE(control<QLabel>(&panel, u"lblEnunciado_1"_s)->text(), u"Seis, vez 2"_s);
        QCOMPARE(control<QLabel>(&panel, u"lblEnunciado_0"_s)->text(), u"Seis, vez 0"_s);
        QCOMPARE(respuesta->text() + veredicto->text(), QString());
        // What the lessons print can be given as an answer.
        respuesta->setText(u" 2 · F(11) − F (3)×fib(4) "_s);
        comprobar->click();
        QCOMPARE(veredicto->text(), u"✗ Palabra: 172"_s);
        // What cannot be read is named, and neither right nor wrong.
        respuesta->setText(u"seis"_s);
        comprobar->click();
        QCOMPARE(veredicto->text(), u"No se ha juzgado: no entiendo «seis»."_s);
        // What was judged is noted, and nothing else.
        const auto *intentos = control<QTableView>(&panel, u"FlexIntentos"_s)->model();
        QStringList notados;
        for (int fila = 0; fila < intentos->rowCount(); ++fila)
            notados << intentos->index(fila, 0).data().toString() + u'|' +
                           intentos->index(fila, 1).data().toString();
        QCOMPARE(notados, QStringList({u"Seis, vez 1|6"_s, u"Seis, vez 1|7"_s,
                                       u"Seis, vez 2|2 · F(11) − F (3)×fib(4)"_s}));
    }

    void otraCuestionEsOtra()
    {
        int sorteos = 0;
        const auto deTresEnTres = [&] {
            return Cuestion{u"Cuestión %1"_s.arg(sorteos++ / 3), {}, {}};
        };
        const auto siempreIgual = [] { return Cuestion{u"La misma"_s, {}, {}}; };
        PanelCuestiones panel(deTresEnTres, siempreIgual, nullptr);
        const auto *enunciado = control<QLabel>(&panel, u"lblEnunciado_0"_s);
        for (int vez = 0; vez < 3; ++vez) {
            const QString antes = enunciado->text();
            control<QPushButton>(&panel, u"cmdOtra_0"_s)->click();
            QVERIFY(enunciado->text() != antes);
        }
        control<QPushButton>(&panel, u"cmdOtra_1"_s)->click();
        QCOMPARE(control<QLabel>(&panel, u"lblEnunciado_1"_s)->text(), u"La misma"_s);
    }
};

NUMORA_TEST_MAIN(TestPiezasDeLeccion)
#include "tst_PiezasDeLeccion.moc"
