// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/windows/FormEuclides.h"
#include "shell/controls/ReproductorAVI.h"
#include "tests/Tabla.h"
#include "tests/lessons/VentanaDeLeccion.h"

#include <QAbstractItemModelTester>

namespace {

QStringList cabecera(const QAbstractItemModel *modelo)
{
    QStringList rotulos;
    for (int c = 0; c < modelo->columnCount(); ++c)
        rotulos << modelo->headerData(c, Qt::Horizontal).toString();
    return rotulos;
}

QString fila(const QAbstractItemModel *modelo, int f)
{
    QStringList celdas;
    for (int c = 0; c < modelo->columnCount(); ++c)
        celdas << modelo->index(f, c).data().toString();
    return celdas.join(u' ');
}

} // namespace

/// The window of Euclid's algorithm, by its controls.
class TestFormEuclides : public QObject, private VentanaDeLeccion<FormEuclides>
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        abre({960, 600});
        m_rejilla = rejilla(u"FlexEuclides"_s);
        m_resultado = el<QLabel>(u"lblExtEuclides"_s);
        m_algoritmo = control<QToolButton>(el<QStatusBar>(u"StatusBar"_s), u"StatusBar_1"_s);
        m_soluciones = rejilla(u"FlexEcuación"_s);
        for (const Rejilla *rejilla : {m_rejilla, m_soluciones})
            new QAbstractItemModelTester(rejilla->model(), m_ventana.get());
    }
    void cleanup() { m_ventana.reset(); }

    void alAbrir()
    {
        QCOMPARE(clavesDeTemas(m_ventana.get()), u"intro euclides diofantica cuestiones"_s);
        QCOMPARE(rotulosDeTemas(m_ventana.get()),
                 u"Introducción|Algoritmo de Euclides|Ecuación diofántica|Cuestiones"_s);
        QVERIFY(m_ventana->URL().endsWith(u"\\Doc\\Euclides.html"_s));
        QCOMPARE(cabecera(m_rejilla->model()).join(u'|'),
                 u"Iteración|Dividendo|Divisor|Cociente|Resto|Coef. 1|Coef. 2"_s);
        QCOMPARE(fila(m_rejilla->model(), 0), u"1 240 46 5 10 1 -5"_s);
        QCOMPARE(m_resultado->text(), u"(-9) · 240 + 47 · 46 = 2"_s);
        QCOMPARE(m_algoritmo->text(), u"Algoritmo estándard"_s);
        QCOMPARE(m_algoritmo->toolTip(), u"Decide si usa o no el método de los restos reducidos"_s);
        QVERIFY(!m_ventana->RestosReducidos());
        QCOMPARE(cabecera(m_soluciones->model()).join(u'|'),
                 u"Sol. Nº|x billetes de importe a|y billetes de importe b"_s);
    }

    void loTecleadoVuelveAlEditar()
    {
        edita(2, u"2^10"_s);
        QCOMPARE(m_rejilla->model()->index(0, 2).data().toString(), u"1.024"_s);
        QCOMPARE(m_resultado->text(), u"(-17) · 240 + 4 · 1.024 = 16"_s);
        QCOMPARE(empiezaAEditar(2)->text(), u"2^10"_s);
        QTest::keyClick(editor(), Qt::Key_Escape);
        QTRY_VERIFY(!editor());
        QCOMPARE(empiezaAEditar(1)->text(), u"240"_s);
    }

    /// In bold stands what the line of the result is made of.
    void deDondeSaleElResultado_data()
    {
        filasDeTexto<bool, QString, QString>(uR"(
            standard                 | no  | 46  | 3,4 3,5 3,6
            reduced: no coefficients | yes | 46  | 2,4
            the divisor itself       | no  | 120 |)"_s);
    }
    void deDondeSaleElResultado()
    {
        const auto [reducidos, divisor, enNegrita] = estaFila<bool, QString, QString>();
        m_ventana->ponRestosReducidos(reducidos);
        edita(2, divisor);
        const QAbstractItemModel *modelo = m_rejilla->model();
        QStringList casillas;
        for (int f = 0; f < modelo->rowCount(); ++f) {
            for (int c = 0; c < modelo->columnCount(); ++c) {
                if (modelo->index(f, c).data(Qt::FontRole).value<QFont>().bold())
                    casillas << u"%1,%2"_s.arg(f).arg(c);
            }
        }
        QCOMPARE(casillas.join(u' '), enNegrita);
    }

    void soloSeEditanDosCasillas()
    {
        const QAbstractItemModel *modelo = m_rejilla->model();
        for (int f = 0; f < modelo->rowCount(); ++f) {
            for (int c = 0; c < modelo->columnCount(); ++c)
                QCOMPARE(modelo->index(f, c).flags().testFlag(Qt::ItemIsEditable),
                         f == 0 && (c == 1 || c == 2));
        }
    }

    void elCambioDeAlgoritmoEsperaALaEdicion()
    {
        QTest::mouseClick(m_algoritmo, Qt::LeftButton);
        QVERIFY(m_ventana->RestosReducidos());
        QCOMPARE(m_algoritmo->text(), u"Algoritmo de los restos reducidos"_s);
        QCOMPARE(m_algoritmo->property("Tag").toString(), u"1"_s);
        QCOMPARE(m_rejilla->model()->rowCount(), 5);
        QCOMPARE(m_resultado->text(), u"(-9) · 240 + 47 · 46 = 2"_s);
        edita(1, u"240"_s);
        QCOMPARE(m_rejilla->model()->rowCount(), 4);
        QCOMPARE(fila(m_rejilla->model(), 1), u"2 46 10 5 -4 -5 26"_s);
        QCOMPARE(m_resultado->text(), u"El MCD es 2"_s);
        QTest::mouseClick(m_algoritmo, Qt::LeftButton);
        QVERIFY(!m_ventana->RestosReducidos());
        QCOMPARE(m_algoritmo->property("Tag").toString(), QString());
        QCOMPARE(m_resultado->text(), u"El MCD es 2"_s);
    }

    void numerosRechazados_data()
    {
        filasDeTexto<bool, QString, QString, QString, QString>(uR"(
            largest | no | 922337203685477 |  | 1 240 922.337.203.685.477 0 240 1 0 |
            one more | no | 922337203685478 | 922337203685477 | " 240 0    " | \
              El mayor número permitido es 922.337.203.685.477.
            largest, reduced | yes | 184467440737095 |  | 1 240 184.467.440.737.095 0 240 1 0 |
            one more, reduced | yes | 184467440737096 | 184467440737095,4 | " 240 0    " | \
              El mayor número permitido es 184467440737095,4.
            empty | no |  |  | " 240 0    " | Escriba un número entero.
            fraction | no | 25/2 |  | " 240 0    " | El valor escrito no es un número entero.
            mod first | no | mod 5 | Argumento no válido. | 1 240 46 5 10 1 -5 |
            below the range | no | -10^20 |  | " 240 0    " | \
              El menor número permitido es -922.337.203.685.477.)"_s);
    }
    /// A refused number counts as 0; why stands below the table until the next edit.
    void numerosRechazados()
    {
        const auto [reducidos, texto, aviso, fila1, motivo] =
            estaFila<bool, QString, QString, QString, QString>();
        const auto *rotulo = el<QLabel>(u"lblAviso"_s);
        m_ventana->ponRestosReducidos(reducidos);
        edita(2, texto);
        QCOMPARE(fila(m_rejilla->model(), 0), fila1);
        QCOMPARE(rotulo->text(),
                 motivo.isEmpty() ? motivo : u"✗ Divisor: %1 Cuenta como 0."_s.arg(motivo));
        if (aviso.isEmpty())
            QVERIFY(Entorno::grabadora().mensajes.isEmpty());
        else
            QCOMPARE(Entorno::grabadora().unico().texto,
                     aviso.front().isDigit() ? u"El mayor número permitido es "_s + aviso : aviso);
        if (!texto.isEmpty())
            QCOMPARE(empiezaAEditar(2)->text(), texto);
        edita(2, u"46"_s);
        QCOMPARE(rotulo->text(), QString());
    }

    /// The widest table that there can be, at the width of the window when it opens on a small
    /// screen, once the steps beside it are put away.
    void columnasEnterasALaVista()
    {
        abreTema(1);
        el<QToolButton>(u"cmdPasos"_s)->click();
        edita(1, u"922337203685477"_s);
        edita(2, u"570035741062561"_s);
        const QAbstractItemModel *modelo = m_rejilla->model();
        for (int c = 0; c < modelo->columnCount(); ++c) {
            const QAbstractItemView *vista = m_rejilla;
            QTRY_VERIFY(m_rejilla->columnWidth(c) >= vista->sizeHintForColumn(c));
            QCOMPARE(modelo->index(0, c).data(Qt::TextAlignmentRole).toInt(),
                     int(Qt::AlignRight | Qt::AlignVCenter));
        }
        QCOMPARE(m_rejilla->horizontalScrollBar()->maximum(), 0);
    }

    void ecuacionAlEscribir()
    {
        abreTema(2);
        const auto *cuenta = el<QLabel>(u"lblSoluciones"_s);
        const auto *general = el<QPlainTextEdit>(u"TxtSoluciones"_s);
        QTest::keyClicks(campo(u"txtNº_0"_s), u"6"_s);
        QCOMPARE(cabecera(m_soluciones->model()).join(u'|'),
                 u"Sol. Nº|Nº de billetes de 6|y billetes de importe b"_s);
        QCOMPARE(cuenta->text(), u"Soluciones"_s);
        QTest::keyClicks(campo(u"txtNº_1"_s), u"5+5"_s);
        QTest::keyClicks(campo(u"txtNº_2"_s), u"10"_s);
        QCOMPARE(cabecera(m_soluciones->model()).constLast(), u"Nº de billetes de 5+5"_s);
        QCOMPARE(cuenta->text(), u"Solución única"_s);
        QCOMPARE(general->toPlainText(), u"x = 0\ny = 1"_s);
        QTest::keyClicks(campo(u"txtNº_2"_s), u"0"_s);
        QCOMPARE(cuenta->text(), u"4 soluciones"_s);
        QCOMPARE(m_soluciones->model()->rowCount(), 4);
        QCOMPARE(fila(m_soluciones->model(), 1), u"2 5 7"_s);
        QTest::keyClicks(campo(u"txtNº_2"_s), u"1"_s);
        QCOMPARE(cuenta->text(), u"Sin soluciones positivas"_s);
        QCOMPARE(general->toPlainText(), QString());
        QCOMPARE(m_soluciones->model()->rowCount(), 0);
    }

    void listaCortada()
    {
        abreTema(2);
        escribeEcuacion(u"1"_s, u"1"_s, u"2000"_s);
        QCOMPARE(m_soluciones->model()->rowCount(), 1001);
        const QString puntos(43, u'·');
        QCOMPARE(fila(m_soluciones->model(), 500), puntos + u' ' + puntos + u' ' + puntos);
        QCOMPARE(fila(m_soluciones->model(), 501), u"1.502 1.501 499"_s);
        QTRY_COMPARE(m_soluciones->horizontalScrollBar()->maximum(), 0);
    }

    /// Nothing of the numbers before stays in sight.
    void ecuacionQueDesborda()
    {
        escribeEcuacion(u"3"_s, u"5"_s, u"8"_s);
        campo(u"txtNº_2"_s)->setText(u"10^14"_s);
        const auto mensaje = Entorno::grabadora().unico();
        QCOMPARE(mensaje.titulo, u"Error en tiempo de ejecución"_s);
        QVERIFY2(mensaje.texto.startsWith(u"Desbordamiento.\nEl primer valor de k"_s),
                 qPrintable(mensaje.texto));
        QCOMPARE(m_soluciones->model()->rowCount(), 0);
        QCOMPARE(texto(u"lblSoluciones"_s), u"Soluciones"_s);
        // The steps are exact.
        QCOMPARE(pasos(2).paso(5).formulas.constFirst().escrita(),
                 u"k >= ceil({-200000000000000}/5) = -40000000000000"_s);
        campo(u"txtNº_2"_s)->clear();
        QCOMPARE(pasos(2).cuantos(), 7);
        campo(u"txtNº_0"_s)->clear();
        QVERIFY(pasos(2).vacios());
    }

    void pasosDeLaTabla()
    {
        abreTema(1);
        const auto ultimo = [this] {
            return pasos(1).paso(pasos(1).cuantos() - 1).formulas.constFirst().escrita();
        };
        QCOMPARE(ultimo(), u"-9*240 + 47*46 = 2"_s);
        m_algoritmo->click();
        QCOMPARE(pasos(1).cuantos(), 5 + 1 + 4 + 1);
        edita(1, u"46"_s);
        edita(2, u"240"_s);
        QCOMPARE(ultimo(), u"47*46 + (-9)*240 = 2"_s);
        edita(2, u"0"_s);
        QVERIFY(pasos(1).vacios());
    }

    /// In place of the table, without touching it; with other numbers again from the start.
    void casillasPorRellenar()
    {
        abreTema(1);
        auto *rellena = el<QToolButton>(u"cmdRellenar"_s);
        rellena->click();
        QVERIFY(m_rejilla->isHidden() && m_resultado->isHidden());
        auto *huecos = rejilla(u"FlexHuecos"_s)->model();
        QCOMPARE(fila(huecos, 4), fila(m_rejilla->model(), 4));
        el<QToolButton>(u"cmdOcultarTodas"_s)->click();
        QCOMPARE(fila(huecos, 0), u"1 240 46 ? ? ? ?"_s);
        QVERIFY(huecos->setData(huecos->index(0, 3), u"5"_s));
        QCOMPARE(fila(huecos, 0), u"1 240 46 ✓ 5 ? ? ?"_s);
        rellena->click();
        QVERIFY(m_rejilla->isVisible() && m_resultado->isVisible());
        edita(1, u"92"_s);
        rellena->click();
        QCOMPARE(fila(huecos, 0), u"1 92 46 2 0 1 -2"_s);
    }

    void cuestiones_data()
    {
        filasDeTexto<QString, QString>(uR"(
            right | 7 | ✓ Correcto
            wrong | 8 | ✗ No es correcto (iteraciones: 7)
            blank |   | Faltan datos: n está en blanco.)"_s);
    }
    void cuestiones()
    {
        const auto [n, palabra] = estaFila<QString, QString>();
        campo(u"txtP1_0"_s)->setText(u"34"_s);
        campo(u"txtP1_1"_s)->setText(u"21"_s);
        campo(u"TxtN"_s)->setText(n);
        pulsa(u"cmdProblema"_s);
        const auto *animacion = el<ReproductorAVI>(u"ccrpAnimation"_s);
        const auto *veredicto = el<QLabel>(u"lblVeredicto"_s);
        QCOMPARE(animacion->estado(), ReproductorAVI::Reproduciendo);
        QCOMPARE(veredicto->text(), palabra);
        campo(u"TxtN"_s)->setText(u"1"_s);
        QCOMPARE(veredicto->text(), QString());
    }

    void demasiadasIteraciones()
    {
        campo(u"TxtN"_s)->setText(u"101"_s);
        pulsa(u"cmdProblema"_s);
        QCOMPARE(Entorno::grabadora().unico().texto, u"El mayor número permitido es 100"_s);
    }

private:
    QLineEdit *editor() const { return m_rejilla->viewport()->findChild<QLineEdit *>(); }

    /// Opens the editor of a cell of the first row as the F2 key does.
    QLineEdit *empiezaAEditar(int columna)
    {
        abreTema(1);
        if (!editor()) {
            m_rejilla->setCurrentIndex(m_rejilla->model()->index(0, columna));
            m_rejilla->setFocus();
            QTest::keyClick(m_rejilla, Qt::Key_F2);
        }
        return editor();
    }

    void edita(int columna, const QString &texto)
    {
        QLineEdit *abierto = empiezaAEditar(columna);
        abierto->selectAll();
        if (texto.isEmpty())
            QTest::keyClick(abierto, Qt::Key_Delete);
        QTest::keyClicks(abierto, texto);
        QTest::keyClick(abierto, Qt::Key_Return);
        QTRY_VERIFY(!editor());
        QCoreApplication::processEvents();
    }

    void escribeEcuacion(const QString &a, const QString &b, const QString &c)
    {
        campo(u"txtNº_0"_s)->setText(a);
        campo(u"txtNº_1"_s)->setText(b);
        campo(u"txtNº_2"_s)->setText(c);
    }

    Rejilla *m_rejilla = nullptr, *m_soluciones = nullptr;
    QLabel *m_resultado = nullptr;
    QToolButton *m_algoritmo = nullptr;
};

NUMORA_TEST_MAIN(TestFormEuclides)
#include "tst_FormEuclides.moc"
