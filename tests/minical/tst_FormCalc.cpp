// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "shell/core/ModGlobal.h"
#include "tests/Tabla.h"
#include "tests/minical/VentanaDePrueba.h"

#include <QAbstractItemModelTester>

/// The window of the sheet by mouse and buttons: commands, precision, clipboard, help.
class TestFormCalc : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m = std::make_unique<VentanaDePrueba>();
    }
    void cleanup() { m.reset(); }

    void alAbrir()
    {
        const auto *temas = control<QTabBar>(m->ventana(), u"tsTema"_s);
        QCOMPARE(temas->tabText(0), u"Hoja de cálculo"_s);
        QCOMPARE(temas->tabText(1), u"Ayuda"_s);
        QCOMPARE((*m)->windowTitle(), u"Mini hoja de cálculo"_s);
        QVERIFY((*m)->URL().endsWith(u"\\Doc\\MiniCal.html"_s));
        QTest::keyRelease(m->rejilla(), Qt::Key_F1);
        QCOMPARE(Entorno::grabadora().abiertas, QStringList({(*m)->URL()}));
        QVERIFY(!m->rejilla()->currentIndex().isValid());
        auto *modelo = m->rejilla()->model();
        QCOMPARE(modelo->rowCount(), 99);
        QCOMPARE(modelo->columnCount(), 25);
        QCOMPARE(modelo->headerData(24, Qt::Horizontal).toString(), u"Y"_s);
        QCOMPARE(modelo->headerData(98, Qt::Vertical).toString(), u"99"_s);
        QCOMPARE(m->rejilla()->font().families().constFirst(), u"Courier New"_s);
        const QAbstractItemModelTester probador(modelo);
        m->entra(u"A1", u"1/3"_s);
    }

    void botonesYAyudas_data()
    {
        filasDeTexto<QString, QString>(uR"(
            ValorDecimal | Valor decimal || Recalcular | Recalcula
            MostrarExpresiones | Mostrar las expresiones entradas
            MostrarResultados | Mostrar los resultados de las evaluaciones
            Zoom | Zoom de celdas || ValidarPrecisión | Validar precisión)"_s);
    }
    void botonesYAyudas()
    {
        const auto [orden, ayuda] = estaFila<QString, QString>();
        const auto *boton = m->elBoton(orden);
        QCOMPARE(boton->toolTip(), ayuda);
        QVERIFY(!boton->icon().isNull());
    }

    void loQueNoCabeEnLaBarraSeAnuncia()
    {
        m->ventana()->resize(320, 400);
        const auto *mas = control<QToolButton>(m->ventana(), u"qt_toolbar_ext_button"_s);
        QTRY_VERIFY(mas->isVisible());
        QCOMPARE(mas->accessibleName(), u"Más órdenes"_s);
    }

    void borrarYDeshacer()
    {
        m->entra(u"A1", u"5"_s);
        m->entra(u"A2", u"A1+1"_s);
        m->rejilla()->selectAll();
        m->pulsa(Qt::Key_Delete);
        QCOMPARE(m->texto(u"A1") + m->texto(u"A2"), QString());
        m->boton(u"Deshacer"_s);
        QCOMPARE(m->texto(u"A2"), u"6"_s);
        m->boton(u"Deshacer"_s);
        m->boton(u"Deshacer"_s);
        QVERIFY(!m->elBoton(u"Deshacer"_s)->isEnabled());
        QCOMPARE((*m)->windowTitle(), u"Mini hoja de cálculo"_s);
        m->boton(u"Rehacer"_s);
        QCOMPARE(m->texto(u"A1"), u"5"_s);
        QCOMPARE((*m)->windowTitle(), u"Mini hoja de cálculo *"_s);
    }

    void elRaton()
    {
        m->entra(u"B3", u"1/2"_s);
        m->pincha(u"B3", Qt::RightButton);
        QCOMPARE(m->actual(), u"B3"_s);
        QCOMPARE(m->editado(), u"1/2"_s);
        // A click on another cell takes what has been typed.
        m->editor()->setText(u"1/4"_s);
        m->pincha(u"C1");
        QCOMPARE(m->texto(u"B3"), u"1/4"_s);
        QCOMPARE(m->actual(), u"C1"_s);
        m->pincha(u"B3");
        QTest::mouseDClick(m->rejilla()->viewport(), Qt::LeftButton, {}, m->lugar(u"B3"));
        QCOMPARE(m->editado(), u"1/4"_s);
        m->pulsa(Qt::Key_Escape);
        QWidget *cabecera = m->rejilla()->horizontalHeader()->viewport();
        for (const auto boton : {Qt::LeftButton, Qt::RightButton}) {
            QTest::mouseClick(cabecera, boton, {}, {20, 5});
            QCOMPARE(m->actual(), u"B3"_s);
            QVERIFY(!m->editor());
        }
        QTest::mouseDClick(cabecera, Qt::LeftButton, {}, {20, 5});
        QCOMPARE(m->editado(), u"1/4"_s);
    }

    void losBotonesTomanLoQueSeEscribe()
    {
        m->ve(u"A1");
        m->teclea(u"3/4"_s);
        m->boton(u"ValorDecimal"_s);
        QCOMPARE(m->texto(u"A1"), u"0,75"_s);
        m->boton(u"MostrarExpresiones"_s);
        QCOMPARE(m->texto(u"A1"), u"3/4"_s);
        m->boton(u"MostrarResultados"_s);
        QCOMPARE(m->texto(u"A1"), u"0,75"_s);
        m->boton(u"Recalcular"_s);
        QCOMPARE(m->texto(u"A1"), u"3/4"_s);
    }

    void erroresALaVista()
    {
        m->entra(u"A1", u"mod 5"_s);
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
        const QModelIndex error = m->indice(u"A1");
        QCOMPARE(m->texto(u"A1"), u"Error"_s);
        QVERIFY(error.data(Qt::ForegroundRole).isValid() &&
                error.data(Qt::BackgroundRole).isValid());
        QVERIFY(!m->indice(u"A2").data(Qt::BackgroundRole).isValid());
    }

    void numerosLargos()
    {
        m->entra(u"A1", u"2^1000"_s);
        const QString entero = m->texto(u"A1");
        QCOMPARE(entero.size(), 302);
        QString ayuda = m->indice(u"A1").data(Qt::ToolTipRole).toString();
        QVERIFY(ayuda.contains(u'\n'));
        QCOMPARE(ayuda.remove(u'\n'), entero);
        // The column fits as much as is reasonable when its border is clicked twice.
        m->rejilla()->resizeColumnToContents(0);
        const int ancho = m->rejilla()->columnWidth(0);
        QVERIFY(ancho > m->rejilla()->columnWidth(1) && ancho < 1200);
    }

    void precision_data()
    {
        filasDeTexto<QString, QString, QString>(uR"(
            expression | 2*25 | 50 | || the most | 1000 | 1000 |
            one more | 1001 | 100 | El mayor número permitido es 1000
            half an expression | 2* | 100 | || fraction | 7/2 | 100 | || empty |  | 100 |
            begins with mod | mod 3 | 100 | Argumento no válido.)"_s);
    }
    void precision()
    {
        const auto [texto, queda, mensaje] = estaFila<QString, QString, QString>();
        InstalaAvisoDeCota([](const QString &cota) {
            interlocutor().avisa(nullptr, Interlocutor::Icono::Informacion,
                                 u"El mayor número permitido es "_s + cota, {});
        });
        QCOMPARE(m->campo(u"txtPrecisión"_s)->text(), u"100"_s);
        m->campo(u"txtPrecisión"_s)->setText(texto);
        m->boton(u"ValidarPrecisión"_s);
        QCOMPARE(QString::number(Sesión().Precisión()), queda);
        QCOMPARE(Entorno::grabadora().mensajes.size(), mensaje.isEmpty() ? 0 : 1);
        QCOMPARE(Entorno::grabadora().mensajes.value(0).texto, mensaje);
    }

    /// Where a stored precision cannot be read, it can be mended all the same.
    void unaPrecisionDesmedida()
    {
        Sesión().guarda(u"Aritmética"_s, u"Precisión"_s, u" 99999999999"_s);
        m = std::make_unique<VentanaDePrueba>();
        auto *campo = m->campo(u"txtPrecisión"_s);
        const auto *aviso = control<QLabel>(m->ventana(), u"lblPrecisión"_s);
        QCOMPARE(campo->text(), u"99999999999"_s);
        QVERIFY(aviso->isVisible() && aviso->text().contains(u"Pasa de 1000"_s));
        m->boton(u"ValidarPrecisión"_s);
        QVERIFY(aviso->isVisible());
        campo->setText(u"50"_s);
        m->boton(u"ValidarPrecisión"_s);
        QCOMPARE(Sesión().Precisión(), 50);
        QTRY_VERIFY(!aviso->isVisible());
    }

    void laPrecisionRige()
    {
        m->campo(u"txtPrecisión"_s)->setText(u"6"_s);
        m->boton(u"ValidarPrecisión"_s);
        m->entra(u"A1", u"1/7"_s);
        m->ve(u"A1");
        m->boton(u"ValorDecimal"_s);
        QCOMPARE(m->texto(u"A1"), u"0,142857"_s);
    }

    void copiar()
    {
        const auto *portapapeles = QApplication::clipboard();
        m->entra(u"A1", u"1/2+1/4"_s);
        m->ve(u"A1");
        m->boton(u"ValorDecimal"_s);
        m->boton(u"MostrarExpresiones"_s);
        m->pulsa(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(portapapeles->text(), u"0,75"_s);
        m->pulsa(u"Ctrl+Shift+C"_s);
        QCOMPARE(portapapeles->text(), u"1/2+1/4"_s);
        m->entra(u"B2", u"7"_s);
        m->rejilla()->selectionModel()->select({m->indice(u"A1"), m->indice(u"B2")},
                                               QItemSelectionModel::ClearAndSelect);
        m->pulsa(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(portapapeles->text(), u"0,75\t\n\t7\n"_s);
        // The commands look at no header: there the texts are empty.
        m->rejilla()->clearSelection();
        m->rejilla()->setCurrentIndex({});
        control<QAction>(m->ventana(), u"CopiarExpresión"_s)->trigger();
        QCOMPARE(portapapeles->text(), QString());
    }

    void pegar()
    {
        pega(u"2\tA1^10\r\nB1-1\t(\r\n"_s);
        QCOMPARE(m->texto(u"B1"), u"1024"_s);
        QCOMPARE(m->texto(u"A2"), u"1023"_s);
        QCOMPARE(m->texto(u"B2"), u"Error"_s);
        QVERIFY(m->rejilla()->hasFocus());
        m->boton(u"Deshacer"_s);
        QCOMPARE(m->texto(u"A1") + m->texto(u"B2"), QString());
        m->ve(u"Y99");
        m->pulsa(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(m->texto(u"Y99"), u"2"_s);
        QVERIFY(Entorno::grabadora().unico().texto.startsWith(u"Parte de lo que"_s));
    }

    /// A block goes to the corner of what is selected, wherever the current cell stands in it; one
    /// cell fills the selection.
    void pegarEnLoElegido()
    {
        m->ve(u"C3");
        m->pulsa(u"Shift+Up Shift+Left"_s);
        pega(u"1\t2"_s);
        QCOMPARE(m->texto(u"B2") + m->texto(u"C2") + m->texto(u"C3"), u"12"_s);
        QCOMPARE(m->elegidas(), u"B2 C2"_s);
        m->ve(u"B2");
        m->pulsa(u"Shift+Down Shift+Right"_s);
        pega(u"7"_s);
        QCOMPARE(m->texto(u"B2") + m->texto(u"C2") + m->texto(u"B3") + m->texto(u"C3"), u"7777"_s);
        QCOMPARE(m->texto(u"D4"), QString());
    }

    void cortarYPegar()
    {
        m->entra(u"A1", u"1/2+1/4"_s);
        m->ve(u"A1");
        m->pulsa(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(m->texto(u"A1"), QString());
        m->ve(u"B5");
        m->pulsa(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(m->texto(u"B5"), u"3/4"_s);
        QCOMPARE(m->indice(u"B5").data(Qt::EditRole).toString(), u"1/2+1/4"_s);
    }

    void unPegadoLargoSeDetiene()
    {
        pega(pegadoLargo());
        auto *boton = m->elBoton(u"cmdDetener"_s);
        QVERIFY(boton->isVisible() && boton->hasFocus());
        QVERIFY(!m->rejilla()->isEnabled());
        QVERIFY(!m->elBoton(u"Abrir"_s)->isEnabled());
        QTest::keyClick(boton, Qt::Key_Escape);
        QTRY_VERIFY(m->rejilla()->isEnabled());
        QVERIFY(!m->texto(u"A1").isEmpty());
        QCOMPARE(m->texto(u"Y99"), QString());
        QVERIFY(m->rejilla()->hasFocus());
        QVERIFY(!boton->isVisible() && m->elBoton(u"Abrir"_s)->isEnabled());
        m->boton(u"Deshacer"_s);
        QCOMPARE(m->texto(u"A1"), QString());
    }

    void unPegadoQueFallaDejaLaHojaEnUso()
    {
        const auto falla =
            connect(m->rejilla()->model(), &QAbstractItemModel::dataChanged, this,
                    [] { throw ErrorEjecucion(ErrorEjecucion::MemoriaInsuficiente); });
        pega(u"1\t2"_s);
        disconnect(falla);
        QCOMPARE(Entorno::grabadora().unico().titulo, u"Error en tiempo de ejecución"_s);
        QVERIFY(m->rejilla()->isEnabled());
        m->entra(u"B1", u"6*7"_s);
        QCOMPARE(m->texto(u"B1"), u"42"_s);
    }

    void cerrarEnMitadDeUnPegado()
    {
        pega(pegadoLargo());
        Entorno::grabadora().guardados = {Interlocutor::Guardado::Descartar};
        QVERIFY(m->ventana()->close());
        QCOMPARE(Entorno::grabadora().preguntasSiGuarda.size(), 1);
        m.reset();
        QCoreApplication::processEvents();
    }

    void unEjemploDeLaAyudaSeCopiaEnLaHoja()
    {
        auto *temas = control<QTabBar>(m->ventana(), u"tsTema"_s);
        auto *pagina = control<QTextBrowser>(m->ventana(), u"wbIntro"_s);
        temas->setCurrentIndex(1);
        QTextCursor elegido = pagina->document()->find(u"(A1+2/A1)/2"_s);
        const QTextCursor ultimo = pagina->document()->find(u"(A5+2/A5)/2"_s);
        QVERIFY(!elegido.isNull() && !ultimo.isNull());
        elegido.setPosition(elegido.selectionStart());
        elegido.setPosition(ultimo.selectionEnd(), QTextCursor::KeepAnchor);
        pagina->setTextCursor(elegido);
        pagina->copy();
        temas->setCurrentIndex(0);
        m->entra(u"A1", u"1"_s);
        m->pulsa(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(m->texto(u"A6"), u"886731088897/627013566048"_s);
    }

private:
    void pega(const QString &texto)
    {
        QApplication::clipboard()->setText(texto);
        m->pulsa(Qt::Key_V, Qt::ControlModifier);
    }
    static QString pegadoLargo()
    {
        return (QStringList(25, u"fib(100000)"_s).join(u'\t') + u'\n').repeated(99);
    }

    std::unique_ptr<VentanaDePrueba> m;
};

NUMORA_TEST_MAIN(TestFormCalc)
#include "tst_FormCalc.moc"
