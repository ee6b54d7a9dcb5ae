// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/steps/PanelDePasos.h"
#include "tests/Tabla.h"
#include "tests/minical/VentanaDePrueba.h"

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
        // F2 begins with what is there.
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
        filasDeTexto<QString, QString>(uR"(
            Enter | Return | C4 || Shift+Enter | Shift+Return | C2 || Tab | Tab | D3
            Shift+Tab | Shift+Backtab | B3 || down | Down | C4 || up | Up | C2)"_s);
    }
    void adondeLlevanLasTeclas()
    {
        const auto [teclas, destino] = estaFila<QString, QString>();
        m->ve(u"C3");
        m->teclea(u"6*7"_s);
        m->pulsa(teclas);
        QCOMPARE(m->texto(u"C3"), u"42"_s);
        QCOMPARE(m->actual(), destino);
        // The same without an edit.
        m->ve(u"C3");
        m->pulsa(teclas);
        QCOMPARE(m->actual(), destino);
    }

    /// F8 shows why a cell holds what it holds, and takes it away; the steps follow the cell and
    /// what changes it.
    void explicarCelda()
    {
        auto *panel = m->ventana()->findChild<PanelDePasos *>();
        m->entra(u"A1", u"6"_s);
        m->entra(u"A2", u"A1*7+1"_s);
        QVERIFY(!panel->isVisible());
        m->ve(u"A2");
        m->pulsa(Qt::Key_F8);
        QVERIFY(panel->isVisible() && panel->isAncestorOf(QApplication::focusWidget()));
        QCOMPARE(panel->pasos().cuantos(), 4);
        QCOMPARE(panel->pasos().paso(3).frase, u"A2 vale 43."_s);
        m->entra(u"A1", u"5"_s);
        m->ve(u"A2");
        QVERIFY(panel->pasos().paso(3).regla.contains(u"muestra 43 hasta"_s));
        m->pulsa(Qt::Key_F9);
        QCOMPARE(panel->pasos().paso(3).frase, u"A2 vale 36."_s);
        m->ve(u"C3");
        QVERIFY(panel->pasos().vacios());
        // The key of the decimal value has made way.
        m->entra(u"B1", u"1/8"_s);
        m->ve(u"B1");
        m->pulsa(Qt::Key_F8, Qt::ShiftModifier);
        QCOMPARE(m->texto(u"B1"), u"0,125"_s);
        QVERIFY(panel->isVisible());
    }

    void saltosConCtrl_data()
    {
        filasDeTexto<QString, QString, QString>(uR"(
            end of the block | Down | B2 | B4 || to the next block | Down | B4 | B8
            from outside | Down | B1 | B2 || edge | Down | B8 | B99 || up | Up | B4 | B2
            right | Right | B3 | D3 || left | Left | D3 | B3 || left edge | Left | B3 | A3
            first cell | Home | D3 | A1 || last row and column in use | End | A1 | D8)"_s);
    }
    void saltosConCtrl()
    {
        const auto [tecla, desde, hasta] = estaFila<QString, QString, QString>();
        for (const auto *celda : {u"B2", u"B3", u"B4", u"B8", u"C3", u"D3"})
            m->entra(celda, u"1"_s);
        m->ve(desde);
        m->pulsa(u"Ctrl+"_s + tecla);
        QCOMPARE(m->actual(), hasta);
        m->ve(desde);
        m->pulsa(u"Ctrl+Shift+"_s + tecla);
        QCOMPARE(m->actual(), hasta);
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
        QCOMPARE(m->elegidas(), u"B3 B4"_s);
        QWidget *lienzo = m->rejilla()->viewport();
        QTest::mouseClick(lienzo, Qt::LeftButton, Qt::ShiftModifier, m->lugar(u"A3"));
        QCOMPARE(m->actual(), u"A3"_s);
        QCOMPARE(m->elegidas(), u"A3 B3"_s);
        // The same when the mouse moves on before it is released.
        m->ve(u"C5");
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
        auto *linea = m->campo(u"txtExpresión"_s);
        const auto *nombre = control<QLabel>(m->ventana(), u"lblCelda"_s);
        QVERIFY(!linea->isEnabled());
        m->entra(u"B2", u"1/3"_s);
        QCOMPARE(nombre->text() + linea->text(), u"B3"_s);
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
        // A button of the toolbar takes what stands in the line, as it does with a cell's edit.
        m->ve(u"A1");
        linea->setFocus();
        QTest::keyClicks(linea, u"3/4"_s);
        m->boton(u"ValorDecimal"_s);
        QCOMPARE(m->texto(u"A1"), u"0,75"_s);
    }

    /// What would make an expression too long is refused as a whole, in the cell and above it.
    void loDemasiadoLargoSeRechaza_data()
    {
        filasDeTexto<QString>(u"in the cell | cell || above it | line"_s);
    }
    void loDemasiadoLargoSeRechaza()
    {
        const QString donde = estaFila<QString>();
        m->ve(u"A1");
        m->teclea(u"2"_s);
        auto *linea = m->campo(u"txtExpresión"_s);
        if (donde == u"line"_s)
            linea->setFocus();
        QLineEdit *campo = donde == u"line"_s ? linea : m->editor();
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
        filasDeTexto<QString, QString, QString>(uR"(
            first one | 2+MC | Tab | 2+mcd( || chosen | mc | Down Down Return | mcm(
            back up | mi | Down Up Return | min( || put away | fi | Esc | fi
            gone with the bracket | fi(7) | | fi(7) || no such name | xy | | xy)"_s);
    }
    void lasFuncionesSeOfrecen()
    {
        const auto [escrito, teclas, queda] = estaFila<QString, QString, QString>();
        m->ve(u"A1");
        m->teclea(escrito);
        const auto *lista = m->editor()->findChild<QListWidget *>(u"lstFunciones"_s);
        QCOMPARE(lista && lista->isVisible(), !teclas.isEmpty());
        m->pulsa(teclas);
        QVERIFY(!lista || !lista->isVisible());
        QVERIFY(m->editor());
        QCOMPARE(m->editor()->text(), queda);
        // With none chosen, Enter is what it always is.
        m->pulsa(Qt::Key_Return);
        QVERIFY(!m->editor());
        QCOMPARE(m->actual(), u"A2"_s);
    }

    void loQueSeDiceDeLaCelda()
    {
        m->entra(u"A1", u"1+C3"_s);
        QCOMPARE(m->rotulo(u"lblEstado"_s), QString());
        m->ve(u"A1");
        QCOMPARE(m->rotulo(u"lblEstado"_s), u"✗ C3 está vacía."_s);
        QCOMPARE(m->indice(u"A1").data(Qt::ToolTipRole).toString(), u"Error: C3 está vacía."_s);
        m->entra(u"C3", u"2^100"_s);
        m->ve(u"A1");
        m->pulsa(Qt::Key_F9);
        QCOMPARE(m->rotulo(u"lblEstado"_s), u"Cifras: 31"_s);
    }

private:
    std::unique_ptr<VentanaDePrueba> m;
};

NUMORA_TEST_MAIN(TestFormCalcTeclas)
#include "tst_FormCalcTeclas.moc"
