// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/minical/VentanaDePrueba.h"

/// The zoom of the current cell, and what makes it follow and what does not.
class TestFormZoom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m = std::make_unique<VentanaDePrueba>();
    }
    void cleanup() { m.reset(); }

    void enLaCabecera()
    {
        QVERIFY(!m->zoom());
        m->boton(u"Zoom"_s);
        QVERIFY(m->zoom()->isVisible());
        QCOMPARE(m->vistoEnElZoom(), u"Zoom: "_s);
        QCOMPARE(m->zoom()->size(), (*m)->size() / 3);
        QVERIFY(control<QPlainTextEdit>(m->zoom(), u"txtZoom"_s)->isReadOnly());
    }

    void sigueALaCelda()
    {
        m->entra(u"A1", u"1/3"_s);
        m->entra(u"B2", u"2^70"_s);
        m->ve(u"A1");
        m->boton(u"Zoom"_s);
        QCOMPARE(m->vistoEnElZoom(), u"Zoom de A1: 1/3"_s);
        m->pincha(u"B2");
        QCOMPARE(m->vistoEnElZoom(), u"Zoom de B2: 1180591620717411303424"_s);
        m->pulsa(Qt::Key_Left);
        QCOMPARE(m->zoom()->windowTitle(), u"Zoom de A2"_s);
        // What is shown is the text in sight, which may be the expression.
        m->boton(u"MostrarExpresiones"_s);
        m->pincha(u"A1");
        QCOMPARE(m->textoDelZoom(), u"1/3"_s);
        // The result of an edit stays there though the cell below becomes current.
        m->teclea(u"1/8"_s);
        m->pulsa(Qt::Key_Return);
        QCOMPARE(m->vistoEnElZoom(), u"Zoom de A1: 1/8"_s);
        m->ve(u"A1");
        m->boton(u"ValorDecimal"_s);
        QCOMPARE(m->textoDelZoom(), u"0,125"_s);
        m->boton(u"Recalcular"_s);
        QCOMPARE(m->textoDelZoom(), u"1/8"_s);
    }

    void unaCabeceraDaElNombreYLaCeldaElTexto()
    {
        m->entra(u"A1", u"7"_s);
        m->ve(u"A1");
        m->boton(u"Zoom"_s);
        auto *cabecera = m->rejilla()->horizontalHeader();
        QTest::mouseClick(cabecera->viewport(), Qt::LeftButton, {},
                          {cabecera->sectionViewportPosition(2) + 20, 5});
        QCOMPARE(m->vistoEnElZoom(), u"Zoom de C: 7"_s);
        QCOMPARE(m->actual(), u"A1"_s);
    }

    void escapeSueltaElBotonSinOcultar()
    {
        auto *boton = control<QAbstractButton>(m->ventana(), u"Zoom"_s);
        m->entra(u"A1", u"7"_s);
        m->ve(u"A1");
        m->boton(u"Zoom"_s);
        QTest::keyClick(control<QWidget>(m->zoom(), u"txtZoom"_s), Qt::Key_Escape);
        QVERIFY(!boton->isChecked() && m->zoom()->isVisible());
        m->pincha(u"B1");
        QCOMPARE(m->vistoEnElZoom(), u"Zoom de A1: 7"_s);
        // New results still come to it, for it is in sight.
        m->teclea(u"9"_s);
        m->pulsa(Qt::Key_Return);
        QCOMPARE(m->textoDelZoom(), u"9"_s);
        m->boton(u"Zoom"_s);
        QVERIFY(boton->isChecked());
        QCOMPARE(m->zoom()->windowTitle(), u"Zoom de B2"_s);
        m->boton(u"Zoom"_s);
        QVERIFY(!boton->isChecked() && !m->zoom()->isVisible());
    }

    void cerrarloSueltaElBoton()
    {
        m->boton(u"Zoom"_s);
        m->zoom()->close();
        QVERIFY(!control<QAbstractButton>(m->ventana(), u"Zoom"_s)->isChecked());
        m->boton(u"Zoom"_s);
        QVERIFY(m->zoom()->isVisible());
        m->ventana()->close();
        QVERIFY(!m->zoom()->isVisible());
    }

    void elMandoCambiaLaLetra()
    {
        m->boton(u"Zoom"_s);
        auto *mando = control<QSlider>(m->zoom(), u"SliderZoom"_s);
        const auto *texto = control<QPlainTextEdit>(m->zoom(), u"txtZoom"_s);
        QCOMPARE(mando->value(), texto->font().pointSize());
        mando->setValue(48);
        QCOMPARE(texto->font().pointSize(), 48);
        QCOMPARE(texto->font().families().constFirst(), u"Courier New"_s);
    }

private:
    std::unique_ptr<VentanaDePrueba> m;
};

NUMORA_TEST_MAIN(TestFormZoom)
#include "tst_FormZoom.moc"
