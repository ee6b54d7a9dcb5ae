// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "shell/core/ModGlobal.h"
#include "tests/minical/VentanaDePrueba.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QTabBar>
#include <QTextBrowser>
#include <QToolBar>

using namespace Qt::Literals::StringLiterals;

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
        QTest::addColumn<QString>("ayuda");
        QTest::newRow("ValorDecimal") << u"Valor decimal"_s;
        QTest::newRow("Recalcular") << u"Recalcula"_s;
        QTest::newRow("MostrarExpresiones") << u"Mostrar las expresiones entradas"_s;
        QTest::newRow("MostrarResultados") << u"Mostrar los resultados de las evaluaciones"_s;
        QTest::newRow("Zoom") << u"Zoom de celdas"_s;
        QTest::newRow("ValidarPrecisión") << u"Validar precisión"_s;
    }
    void botonesYAyudas()
    {
        QFETCH(QString, ayuda);
        const auto *boton =
            control<QAbstractButton>(m->ventana(), QString::fromUtf8(QTest::currentDataTag()));
        QCOMPARE(boton->toolTip(), ayuda);
        QVERIFY(!boton->icon().isNull());
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
        QVERIFY(!control<QAbstractButton>(m->ventana(), u"Deshacer"_s)->isEnabled());
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
        QVERIFY(m->editor());
        QCOMPARE(m->editor()->text(), u"1/2"_s);
        // A click on another cell takes what has been typed.
        m->editor()->setText(u"1/4"_s);
        m->pincha(u"C1");
        QCOMPARE(m->texto(u"B3"), u"1/4"_s);
        QCOMPARE(m->actual(), u"C1"_s);
        m->pincha(u"B3");
        QTest::mouseDClick(m->rejilla()->viewport(), Qt::LeftButton, {}, m->lugar(u"B3"));
        QVERIFY(m->editor());
        QCOMPARE(m->editor()->text(), u"1/4"_s);
        m->pulsa(Qt::Key_Escape);
        for (const auto boton : {Qt::LeftButton, Qt::RightButton}) {
            QTest::mouseClick(m->rejilla()->horizontalHeader()->viewport(), boton, {}, {20, 5});
            QCOMPARE(m->actual(), u"B3"_s);
            QVERIFY(!m->editor());
        }
        QTest::mouseDClick(m->rejilla()->horizontalHeader()->viewport(), Qt::LeftButton, {},
                           {20, 5});
        QVERIFY(m->editor());
        QCOMPARE(m->editor()->text(), u"1/4"_s);
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
        QVERIFY(error.data(Qt::ForegroundRole).isValid());
        QVERIFY(error.data(Qt::BackgroundRole).isValid());
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
        QTest::addColumn<QString>("texto");
        QTest::addColumn<int>("queda");
        QTest::addColumn<QString>("mensaje");
        QTest::newRow("expression") << u"2*25"_s << 50 << QString();
        QTest::newRow("the most") << u"1000"_s << 1000 << QString();
        QTest::newRow("one more") << u"1001"_s << 100 << u"El mayor número permitido es 1000"_s;
        QTest::newRow("half an expression") << u"2*"_s << 100 << QString();
        QTest::newRow("fraction") << u"7/2"_s << 100 << QString();
        QTest::newRow("empty") << QString() << 100 << QString();
        QTest::newRow("begins with mod") << u"mod 3"_s << 100 << u"Argumento no válido."_s;
    }
    void precision()
    {
        QFETCH(QString, texto);
        QFETCH(QString, mensaje);
        InstalaAvisoDeCota([](const QString &cota) {
            interlocutor().avisa(nullptr, Interlocutor::Icono::Informacion,
                                 u"El mayor número permitido es "_s + cota, {});
        });
        auto *campo = control<QLineEdit>(m->ventana(), u"txtPrecisión"_s);
        QCOMPARE(campo->text(), u"100"_s);
        campo->setText(texto);
        m->boton(u"ValidarPrecisión"_s);
        QTEST(Sesión().Precisión(), "queda");
        if (mensaje.isEmpty())
            QVERIFY(Entorno::grabadora().mensajes.isEmpty());
        else
            QCOMPARE(Entorno::grabadora().unico().texto, mensaje);
    }

    /// Where a stored precision cannot be read, it can be mended all the same.
    void unaPrecisionDesmedida()
    {
        Sesión().guarda(u"Aritmética"_s, u"Precisión"_s, u" 99999999999"_s);
        m = std::make_unique<VentanaDePrueba>();
        auto *campo = control<QLineEdit>(m->ventana(), u"txtPrecisión"_s);
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
        control<QLineEdit>(m->ventana(), u"txtPrecisión"_s)->setText(u"6"_s);
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
        m->pulsa(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
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
        QApplication::clipboard()->setText(u"2\tA1^10\r\nB1-1\t(\r\n"_s);
        m->pulsa(Qt::Key_V, Qt::ControlModifier);
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
        m->pulsa(Qt::Key_Up, Qt::ShiftModifier);
        m->pulsa(Qt::Key_Left, Qt::ShiftModifier);
        QApplication::clipboard()->setText(u"1\t2"_s);
        m->pulsa(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(m->texto(u"B2") + m->texto(u"C2") + m->texto(u"C3"), u"12"_s);
        QCOMPARE(m->rejilla()->selectionModel()->selectedIndexes(),
                 QModelIndexList({m->indice(u"B2"), m->indice(u"C2")}));
        m->ve(u"B2");
        m->pulsa(Qt::Key_Down, Qt::ShiftModifier);
        m->pulsa(Qt::Key_Right, Qt::ShiftModifier);
        QApplication::clipboard()->setText(u"7"_s);
        m->pulsa(Qt::Key_V, Qt::ControlModifier);
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
        const QStringList fila(25, u"fib(100000)"_s);
        QApplication::clipboard()->setText((fila.join(u'\t') + u'\n').repeated(99));
        m->pulsa(Qt::Key_V, Qt::ControlModifier);
        auto *boton = control<QAbstractButton>(m->ventana(), u"cmdDetener"_s);
        QVERIFY(boton->isVisible() && boton->hasFocus());
        QVERIFY(!m->rejilla()->isEnabled());
        QVERIFY(!control<QAbstractButton>(m->ventana(), u"Abrir"_s)->isEnabled());
        QTest::keyClick(boton, Qt::Key_Escape);
        QTRY_VERIFY(m->rejilla()->isEnabled());
        QVERIFY(!m->texto(u"A1").isEmpty());
        QCOMPARE(m->texto(u"Y99"), QString());
        QVERIFY(m->rejilla()->hasFocus());
        QVERIFY(!control<QAbstractButton>(m->ventana(), u"cmdDetener"_s)->isVisible());
        QVERIFY(control<QAbstractButton>(m->ventana(), u"Abrir"_s)->isEnabled());
        m->boton(u"Deshacer"_s);
        QCOMPARE(m->texto(u"A1"), QString());
    }

    void unPegadoQueFallaDejaLaHojaEnUso()
    {
        const auto falla =
            connect(m->rejilla()->model(), &QAbstractItemModel::dataChanged, this,
                    [] { throw ErrorEjecucion(ErrorEjecucion::MemoriaInsuficiente); });
        QApplication::clipboard()->setText(u"1\t2"_s);
        m->pulsa(Qt::Key_V, Qt::ControlModifier);
        disconnect(falla);
        QCOMPARE(Entorno::grabadora().unico().titulo, u"Error en tiempo de ejecución"_s);
        QVERIFY(m->rejilla()->isEnabled());
        m->entra(u"B1", u"6*7"_s);
        QCOMPARE(m->texto(u"B1"), u"42"_s);
    }

    void cerrarEnMitadDeUnPegado()
    {
        const QStringList fila(25, u"fib(100000)"_s);
        QApplication::clipboard()->setText((fila.join(u'\t') + u'\n').repeated(99));
        m->pulsa(Qt::Key_V, Qt::ControlModifier);
        Entorno::grabadora().guardados = {Interlocutor::Guardado::Descartar};
        QVERIFY(m->ventana()->close());
        QCOMPARE(Entorno::grabadora().preguntasSiGuarda.size(), 1);
        m.reset();
        QCoreApplication::processEvents();
    }

    void laAyuda()
    {
        QTest::keyRelease(m->rejilla(), Qt::Key_F1);
        QCOMPARE(Entorno::grabadora().abiertas, QStringList({(*m)->URL()}));
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
    std::unique_ptr<VentanaDePrueba> m;
};

NUMORA_TEST_MAIN(TestFormCalc)
#include "tst_FormCalc.moc"
