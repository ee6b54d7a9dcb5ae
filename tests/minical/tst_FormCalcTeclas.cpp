// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/minical/VentanaDePrueba.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>

using namespace Qt::Literals::StringLiterals;

/// The sheet by its keys: edits in the cells and above them, and where the keys lead.
class TestFormCalcTeclas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m = std::make_unique<VentanaDePrueba>();
    }
    void cleanup() { m.reset(); }

    void escribirEmpiezaPorA1YReemplaza()
    {
        m->teclea(u"2+3"_s);
        QCOMPARE(m->editor()->text(), u"2+3"_s);
        m->pulsa(Qt::Key_Return);
        QCOMPARE(m->texto(u"A1"), u"5"_s);
        QCOMPARE(m->actual(), u"A2"_s);
        m->ve(u"A1");
        m->teclea(u"7"_s);
        QCOMPARE(m->editor()->text(), u"7"_s);
        m->pulsa(Qt::Key_Escape);
        QVERIFY(!m->editor());
        QCOMPARE(m->texto(u"A1"), u"5"_s);
        QCOMPARE(m->actual(), u"A1"_s);
    }

    void F2CorrigeLaExpresion()
    {
        m->entra(u"B2", u"1/3"_s);
        m->ve(u"B2");
        m->pulsa(Qt::Key_F2);
        QCOMPARE(m->editor()->text(), u"1/3"_s);
        m->teclea(u"0"_s);
        QCOMPARE(m->editor()->text(), u"1/30"_s);
        m->pulsa(Qt::Key_Tab);
        QCOMPARE(m->texto(u"B2"), u"1/30"_s);
        QCOMPARE(m->actual(), u"C2"_s);
        QVERIFY(m->rejilla()->hasFocus());
    }

    void adondeLlevanLasTeclas_data()
    {
        QTest::addColumn<Qt::Key>("tecla");
        QTest::addColumn<bool>("mayusculas");
        QTest::addColumn<QString>("destino");
        QTest::newRow("Enter") << Qt::Key_Return << false << u"C4"_s;
        QTest::newRow("Shift+Enter") << Qt::Key_Return << true << u"C2"_s;
        QTest::newRow("Tab") << Qt::Key_Tab << false << u"D3"_s;
        QTest::newRow("Shift+Tab") << Qt::Key_Backtab << true << u"B3"_s;
        QTest::newRow("down") << Qt::Key_Down << false << u"C4"_s;
        QTest::newRow("up") << Qt::Key_Up << false << u"C2"_s;
    }
    void adondeLlevanLasTeclas()
    {
        QFETCH(Qt::Key, tecla);
        QFETCH(bool, mayusculas);
        const Qt::KeyboardModifiers con = mayusculas ? Qt::ShiftModifier : Qt::NoModifier;
        m->ve(u"C3");
        m->teclea(u"6*7"_s);
        m->pulsa(tecla, con);
        QCOMPARE(m->texto(u"C3"), u"42"_s);
        QTEST(m->actual(), "destino");
        // The same without an edit.
        m->ve(u"C3");
        if (tecla != Qt::Key_Down && tecla != Qt::Key_Up) {
            m->pulsa(tecla, con);
            QTEST(m->actual(), "destino");
        }
    }

    void saltosConCtrl_data()
    {
        QTest::addColumn<Qt::Key>("tecla");
        QTest::addColumn<QString>("desde");
        QTest::addColumn<QString>("hasta");
        QTest::newRow("end of the block") << Qt::Key_Down << u"B2"_s << u"B4"_s;
        QTest::newRow("to the next block") << Qt::Key_Down << u"B4"_s << u"B8"_s;
        QTest::newRow("from outside") << Qt::Key_Down << u"B1"_s << u"B2"_s;
        QTest::newRow("edge") << Qt::Key_Down << u"B8"_s << u"B99"_s;
        QTest::newRow("up") << Qt::Key_Up << u"B4"_s << u"B2"_s;
        QTest::newRow("right") << Qt::Key_Right << u"B3"_s << u"D3"_s;
        QTest::newRow("left") << Qt::Key_Left << u"D3"_s << u"B3"_s;
        QTest::newRow("left edge") << Qt::Key_Left << u"B3"_s << u"A3"_s;
        QTest::newRow("first cell") << Qt::Key_Home << u"D3"_s << u"A1"_s;
        QTest::newRow("last row and column in use") << Qt::Key_End << u"A1"_s << u"D8"_s;
    }
    void saltosConCtrl()
    {
        QFETCH(Qt::Key, tecla);
        QFETCH(QString, desde);
        for (const auto *celda : {u"B2", u"B3", u"B4", u"B8", u"C3", u"D3"})
            m->entra(celda, u"1"_s);
        m->ve(desde);
        m->pulsa(tecla, Qt::ControlModifier);
        QTEST(m->actual(), "hasta");
        m->ve(desde);
        m->pulsa(tecla, Qt::ControlModifier | Qt::ShiftModifier);
        QTEST(m->actual(), "hasta");
        QVERIFY(m->rejilla()->selectionModel()->isSelected(m->indice(desde)));
    }

    /// A selection is extended from the cell to which an edit has led, not from where the mouse
    /// was.
    void elegirTrasUnaEdicion()
    {
        m->pincha(u"B2");
        m->teclea(u"1"_s);
        m->pulsa(Qt::Key_Return);
        m->pulsa(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(m->rejilla()->selectionModel()->selectedIndexes(),
                 QModelIndexList({m->indice(u"B3"), m->indice(u"B4")}));
        QTest::mouseClick(m->rejilla()->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                          m->lugar(u"A3"));
        QCOMPARE(m->actual(), u"A3"_s);
        QCOMPARE(m->rejilla()->selectionModel()->selectedIndexes(),
                 QModelIndexList({m->indice(u"A3"), m->indice(u"B3")}));
        // The same when the mouse moves on before it is released.
        m->ve(u"C5");
        QWidget *lienzo = m->rejilla()->viewport();
        QTest::mousePress(lienzo, Qt::LeftButton, Qt::ShiftModifier, m->lugar(u"D5"));
        QMouseEvent arrastre(QEvent::MouseMove, m->lugar(u"D6"),
                             lienzo->mapToGlobal(m->lugar(u"D6")), Qt::NoButton, Qt::LeftButton,
                             Qt::ShiftModifier);
        QApplication::sendEvent(lienzo, &arrastre);
        QTest::mouseRelease(lienzo, Qt::LeftButton, Qt::ShiftModifier, m->lugar(u"D6"));
        QCOMPARE(m->rejilla()->selectionModel()->selectedIndexes().size(), 4);
        QVERIFY(m->rejilla()->selectionModel()->isSelected(m->indice(u"C5")));
    }

    void laLineaDeLaExpresion()
    {
        auto *linea = control<QLineEdit>(m->ventana(), u"txtExpresión"_s);
        const auto *nombre = control<QLabel>(m->ventana(), u"lblCelda"_s);
        QVERIFY(!linea->isEnabled());
        m->entra(u"B2", u"1/3"_s);
        QCOMPARE(nombre->text(), u"B3"_s);
        QCOMPARE(linea->text(), QString());
        m->ve(u"B2");
        QCOMPARE(nombre->text() + linea->text(), u"B21/3"_s);
        // What is typed into the cell is seen in the line too, until Escape takes it back.
        m->teclea(u"7*8"_s);
        QCOMPARE(linea->text(), u"7*8"_s);
        m->pulsa(Qt::Key_Escape);
        QCOMPARE(linea->text(), u"1/3"_s);
        linea->setFocus();
        QTest::keyClick(linea, Qt::Key_End);
        QTest::keyClicks(linea, u"+1/3"_s);
        QTest::keyClick(linea, Qt::Key_Return);
        QCOMPARE(m->texto(u"B2"), u"2/3"_s);
        QCOMPARE(m->actual(), u"B3"_s);
        QVERIFY(m->rejilla()->hasFocus());
        // Escape leaves the cell as it was; leaving the line by a click takes what it holds.
        m->ve(u"B2");
        linea->setFocus();
        QTest::keyClicks(linea, u"9"_s);
        QTest::keyClick(linea, Qt::Key_Escape);
        QCOMPARE(linea->text(), u"1/3+1/3"_s);
        QCOMPARE(m->texto(u"B2"), u"2/3"_s);
        linea->setFocus();
        linea->selectAll();
        QTest::keyClicks(linea, u"5"_s);
        m->pincha(u"A1");
        QCOMPARE(m->texto(u"B2"), u"5"_s);
        QCOMPARE(m->texto(u"A1"), QString());
        QCOMPARE(nombre->text(), u"A1"_s);
        m->boton(u"Deshacer"_s);
        QCOMPARE(nombre->text() + linea->text(), u"B21/3+1/3"_s);
    }

    /// What would make an expression too long is refused as a whole, in the cell and above it.
    void loDemasiadoLargoSeRechaza_data()
    {
        QTest::addColumn<bool>("enLaCelda");
        QTest::newRow("cell") << true;
        QTest::newRow("line") << false;
    }
    void loDemasiadoLargoSeRechaza()
    {
        QFETCH(bool, enLaCelda);
        m->ve(u"A1");
        m->teclea(u"2"_s);
        auto *linea = control<QLineEdit>(m->ventana(), u"txtExpresión"_s);
        if (!enLaCelda)
            linea->setFocus();
        QLineEdit *campo = enLaCelda ? m->editor() : linea;
        QApplication::clipboard()->setText(u"1+"_s.repeated(49'999) + u"1234"_s);
        campo->paste();
        QVERIFY(Entorno::grabadora().unico().texto.startsWith(u"Parte de lo que"_s));
        QCOMPARE(campo->text(), u"2"_s);
        QApplication::clipboard()->setText(u"+1"_s.repeated(49'999) + u"0"_s);
        campo->paste();
        QCOMPARE(campo->text().size(), 100'000);
        QTest::keyClick(campo, Qt::Key_Return);
        QTRY_COMPARE(m->texto(u"A1"), u"50010"_s);
    }

    void lasFuncionesSeOfrecen_data()
    {
        QTest::addColumn<QString>("escrito");
        QTest::addColumn<QList<Qt::Key>>("teclas");
        QTest::addColumn<QString>("queda");
        const auto fila = [](const char *nombre, const QString &escrito,
                             const QList<Qt::Key> &teclas, const QString &queda) {
            QTest::newRow(nombre) << escrito << teclas << queda;
        };
        fila("first one", u"2+MC"_s, {Qt::Key_Tab}, u"2+mcd("_s);
        fila("chosen", u"mc"_s, {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}, u"mcm("_s);
        fila("back up", u"mi"_s, {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return}, u"min("_s);
        fila("put away", u"fi"_s, {Qt::Key_Escape}, u"fi"_s);
        fila("gone with the bracket", u"fi(7)"_s, {}, u"fi(7)"_s);
        fila("no such name", u"xy"_s, {}, u"xy"_s);
    }
    void lasFuncionesSeOfrecen()
    {
        QFETCH(QString, escrito);
        QFETCH(QList<Qt::Key>, teclas);
        m->ve(u"A1");
        m->teclea(escrito);
        const auto *lista = m->editor()->findChild<QListWidget *>(u"lstFunciones"_s);
        QCOMPARE(lista && lista->isVisible(), !teclas.isEmpty());
        for (const Qt::Key tecla : teclas)
            m->pulsa(tecla);
        QVERIFY(!lista || !lista->isVisible());
        QVERIFY(m->editor());
        QTEST(m->editor()->text(), "queda");
        // With none chosen, Enter is what it always is.
        m->pulsa(Qt::Key_Return);
        QVERIFY(!m->editor());
        QCOMPARE(m->actual(), u"A2"_s);
    }

    /// A button of the toolbar takes what stands in the line, as it does with an edit in a cell.
    void losBotonesTomanLaLinea()
    {
        auto *linea = control<QLineEdit>(m->ventana(), u"txtExpresión"_s);
        m->ve(u"A1");
        linea->setFocus();
        QTest::keyClicks(linea, u"3/4"_s);
        m->boton(u"ValorDecimal"_s);
        QCOMPARE(m->texto(u"A1"), u"0,75"_s);
    }

    void loQueSeDiceDeLaCelda()
    {
        const auto *estado = control<QLabel>(m->ventana(), u"lblEstado"_s);
        m->entra(u"A1", u"1+C3"_s);
        QCOMPARE(estado->text(), QString());
        m->ve(u"A1");
        QCOMPARE(estado->text(), u"✗ C3 está vacía."_s);
        QCOMPARE(m->indice(u"A1").data(Qt::ToolTipRole).toString(), u"Error: C3 está vacía."_s);
        m->entra(u"C3", u"2^100"_s);
        m->ve(u"A1");
        m->pulsa(Qt::Key_F9);
        QCOMPARE(estado->text(), u"Cifras: 31"_s);
    }

private:
    std::unique_ptr<VentanaDePrueba> m;
};

NUMORA_TEST_MAIN(TestFormCalcTeclas)
#include "tst_FormCalcTeclas.moc"
