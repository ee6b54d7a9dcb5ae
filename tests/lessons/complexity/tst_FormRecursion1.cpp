// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/windows/FormRecursion1.h"
#include "lessons/complexity/windows/FormRecursion1DibujoArbol.h"
#include "lessons/complexity/windows/FormRecursion1DibujoHanoi.h"
#include "shell/plot/Grafica.h"
#include "shell/steps/PanelDePasos.h"
#include "tests/Tabla.h"
#include "tests/lessons/VentanaDeLeccion.h"

/// The lesson on recursion and complexity, by its controls.
class TestFormRecursion1 : public QObject, private VentanaDeLeccion<FormRecursión1>
{
    Q_OBJECT

private Q_SLOTS:
    void init() { abre(); }
    void cleanup() { m_ventana.reset(); }

    void alAbrir()
    {
        QCOMPARE(rotulosDeTemas(m_ventana.get()),
                 u"Introducción|Fibonacci|Árbol de llamadas|Torres de Hanói|Cuestiones"_s);
        QVERIFY(m_ventana->URL().endsWith(u"\\Doc\\Recursión1.html"_s));
    }

    void medidas()
    {
        mideHastaElFinal(u"7+7"_s);
        QCOMPARE(filas(u"FlexMedidas"_s), 14);
        QCOMPARE(celda(u"FlexMedidas"_s, 13, 1), u"377"_s);
        QCOMPARE(celda(u"FlexMedidas"_s, 13, 2), u"1.219"_s);
        QCOMPARE(celda(u"FlexMedidas"_s, 13, 4), u"27"_s);
        QCOMPARE(celda(u"FlexMedidas"_s, 13, 6), u"13"_s);
        el<QRadioButton>(u"optLlamadas"_s)->click();
        auto *grafica = el<Grafica>(u"PicCrecimiento"_s);
        QCOMPARE(grafica->encuadre().visible(), QRectF(0, 0, 14, 4));
        // Calls are counted, so that their fit is the same on every machine: nearly φ.
        QVERIFY2(texto(u"lblAjuste"_s).contains(u"1,62"_s), qPrintable(texto(u"lblAjuste"_s)));
        for (int i = 0; i < 14; ++i)
            QTest::keyClick(grafica, Qt::Key_Right);
        QCOMPARE(texto(u"lblPunto"_s), u"n = 14: 1.219 llamadas"_s);
        // Too few points for a fit.
        mideHastaElFinal(u"5"_s);
        QVERIFY(texto(u"lblAjuste"_s).contains(u"tres puntos"_s));
    }

    void unFinalFueraDeSitio_data()
    {
        filasDeTexto<QString, bool>(uR"(
            above | 46 | yes || below | 2 | no || fraction | 7/2 | no || words | mucho | no)"_s);
    }
    void unFinalFueraDeSitio()
    {
        const auto [hasta, aviso] = estaFila<QString, bool>();
        mide(hasta);
        QCOMPARE(filas(u"FlexMedidas"_s), 0);
        QVERIFY(texto(u"lblAvance"_s).startsWith(u"✗"_s));
        QCOMPARE(Entorno::grabadora().mensajes.size(), aviso ? 1 : 0);
        Entorno::grabadora().mensajes.clear();
        campo(u"TxtHasta"_s)->setText(u"5"_s);
        QCOMPARE(texto(u"lblAvance"_s), QString());
    }

    void seDetiene()
    {
        mide(u"45"_s);
        QTRY_VERIFY(filas(u"FlexMedidas"_s) > 2);
        QCOMPARE(boton(u"cmdMedir"_s)->toolTip(), u"Detener cálculo"_s);
        // The key that stops every run.
        QTest::keyClick(boton(u"cmdMedir"_s), Qt::Key_Escape);
        QCOMPARE(boton(u"cmdMedir"_s)->toolTip(), u"Calcular"_s);
        QTRY_VERIFY(texto(u"lblAvance"_s).startsWith(u"Detenido"_s));
        QVERIFY(filas(u"FlexMedidas"_s) < 45);
        mideHastaElFinal(u"4"_s);
        QCOMPARE(filas(u"FlexMedidas"_s), 4);
    }

    /// Started again and stopped at once: no mark is left on the plot whose row is gone.
    void otraMedidaSeLlevaLaGrafica()
    {
        auto *grafica = el<Grafica>(u"PicCrecimiento"_s);
        mideHastaElFinal(u"5"_s);
        QTest::keyClick(grafica, Qt::Key_Right);
        QVERIFY(!texto(u"lblPunto"_s).isEmpty());
        pulsa(u"cmdMedir"_s);
        pulsa(u"cmdMedir"_s);
        QTest::keyClick(grafica, Qt::Key_Left);
        QTest::keyClick(grafica, Qt::Key_Right);
        QCOMPARE(texto(u"lblPunto"_s), QString());
        // The measuring that was stopped says so, and one that took over shows itself alone.
        QTRY_COMPARE(texto(u"lblAvance"_s), u"Detenido en n = 1"_s);
        pulsa(u"cmdMedir"_s);
        pulsa(u"cmdMedir"_s);
        mideHastaElFinal(u"3"_s);
        QTest::qWait(50);
        QCOMPARE(filas(u"FlexMedidas"_s), 3);
        QCOMPARE(texto(u"lblAvance"_s), QString());
    }

    void seCierraDurante_data() { filasDeTexto<int>(uR"(behind the click | 0 || later | 60)"_s); }
    void seCierraDurante()
    {
        const int tras = estaFila<int>();
        auto *ventana = new FormRecursión1;
        QPointer<QWidget> viva(ventana);
        ventana->show();
        control<QLineEdit>(ventana, u"TxtHasta"_s)->setText(u"45"_s);
        control<QPushButton>(ventana, u"cmdMedir"_s)->click();
        QTest::qWait(tras);
        ventana->cierra();
        QTRY_VERIFY(viva.isNull());
    }

    void arbolDeLlamadas()
    {
        auto *n = el<QSpinBox>(u"SpinN"_s);
        auto *hechas = el<QSlider>(u"sldLlamadas"_s);
        n->setValue(5);
        QCOMPARE(hechas->maximum(), 15);
        QCOMPARE(texto(u"lblLlamada"_s), u"Llamada 15 de 15: F(1), se vuelve a calcular."_s);
        pulsa(u"cmdSiguienteLlamada"_s);
        QCOMPARE(texto(u"lblLlamada"_s), u"Llamada 1 de 15: F(5), se pide por primera vez."_s);
        hechas->setValue(7);
        QCOMPARE(texto(u"lblLlamada"_s), u"Llamada 7 de 15: F(1), se vuelve a calcular."_s);
        hechas->setValue(0);
        QVERIFY(!texto(u"lblLlamada"_s).contains(u"F("_s));
        el<QCheckBox>(u"chkMemoria"_s)->click();
        QCOMPARE(hechas->maximum(), 9);
        QCOMPARE(texto(u"lblLlamada"_s), u"Llamada 9 de 9: F(3), estaba en la memoria."_s);
        QVERIFY(texto(u"lblLeyenda"_s).startsWith(u"9 llamadas, de las que 3 "_s));
    }

    void leyendasDelArbol_data()
    {
        filasDeTexto<int, QString>(uR"(
            0 | Una llamada: es un caso base.
            1 | Una llamada: es un caso base.
            2 | 3 llamadas, y ningún valor se pide dos veces.
            3 | 5 llamadas, de las que una pide un valor ya pedido antes (borde discontinuo).
            10 | 177 llamadas, de las que 166 piden un valor ya pedido antes (borde \
              discontinuo).)"_s);
    }
    void leyendasDelArbol()
    {
        const auto [n, leyenda] = estaFila<int, QString>();
        el<QSpinBox>(u"SpinN"_s)->setValue(n);
        QCOMPARE(texto(u"lblLeyenda"_s), leyenda);
    }

    void torresDeHanoi()
    {
        auto *discos = el<QSpinBox>(u"SpinDiscos"_s);
        discos->setValue(1);
        QCOMPARE(texto(u"lblMovimiento"_s), u"Con un disco basta un movimiento."_s);
        discos->setValue(3);
        QVERIFY(!boton(u"cmdAnterior"_s)->isEnabled());
        pulsa(u"cmdSiguienteMovimiento"_s);
        pulsa(u"cmdSiguienteMovimiento"_s);
        QVERIFY(texto(u"lblMovimiento"_s).startsWith(u"Movimiento 2: el disco 2 pasa de A a B."_s));
        pulsa(u"cmdAnterior"_s);
        QCOMPARE(filas(u"FlexMovimientos"_s), 1);
        el<QSlider>(u"sldVelocidad"_s)->setValue(10);
        pulsa(u"cmdMover"_s);
        QCOMPARE(boton(u"cmdMover"_s)->toolTip(), u"Detener los movimientos"_s);
        QTRY_COMPARE(filas(u"FlexMovimientos"_s), 7);
        QVERIFY(boton(u"cmdMover"_s)->toolTip() != u"Detener los movimientos"_s);
        QVERIFY(!boton(u"cmdSiguienteMovimiento"_s)->isEnabled());
        QCOMPARE(celda(u"FlexMovimientos"_s, 3, 1) + celda(u"FlexMovimientos"_s, 3, 3), u"3C"_s);
        // From the end it starts again, and a second click stops it.
        pulsa(u"cmdMover"_s);
        QCOMPARE(filas(u"FlexMovimientos"_s), 0);
        pulsa(u"cmdMover"_s);
        QTest::qWait(60);
        QCOMPARE(filas(u"FlexMovimientos"_s), 0);
        // Another number of discs stops it as well.
        pulsa(u"cmdMover"_s);
        discos->setValue(12);
        QTest::qWait(60);
        QCOMPARE(filas(u"FlexMovimientos"_s), 0);
        QVERIFY(texto(u"lblMovimiento"_s).contains(u"4.095"_s));
    }

    /// With keys and with the mouse; what is refused says why and changes nothing.
    void torresConLaMano()
    {
        abre({1000, 700});
        abreTema(3);
        el<QSpinBox>(u"SpinDiscos"_s)->setValue(3);
        auto *dibujo = el<FormRecursion1DibujoHanoi>(u"PicHanoi"_s);
        const auto pasos = [dibujo] {
            return dibujo->window()->findChildren<PanelDePasos *>().constLast()->pasos().cuantos();
        };
        QTRY_VERIFY(dibujo->width() > 100);
        QCOMPARE(pasos(), 3);
        const auto palo = [dibujo](int indice) {
            return QPoint(dibujo->width() * (2 * indice + 1) / 6, dibujo->height() / 2);
        };
        QTest::keyClicks(dibujo, u"b"_s);
        QCOMPARE(texto(u"lblAvisoHanoi"_s), u"✗ En el palo B no hay ningún disco."_s);
        QTest::keyClicks(dibujo, u"a3"_s);
        QVERIFY(texto(u"lblMovimiento"_s).startsWith(u"Movimiento 1: el disco 1 pasa de A a C."_s));
        QVERIFY(texto(u"lblMovimiento"_s).endsWith(u"Por hacer, como poco: 6."_s));
        QCOMPARE(pasos(), 4);
        QTest::keyClicks(dibujo, u"ac"_s);
        QVERIFY(texto(u"lblAvisoHanoi"_s).contains(u"quedaría sobre el 1"_s));
        QCOMPARE(filas(u"FlexMovimientos"_s), 1);
        QVERIFY(dibujo->accessibleDescription().contains(u"Disco levantado: 2"_s));
        // By a click, by dragging, and by a drag to where the disc cannot lie.
        QTest::mouseClick(dibujo, Qt::LeftButton, {}, palo(1));
        QCOMPARE(filas(u"FlexMovimientos"_s), 2);
        QTest::mousePress(dibujo, Qt::LeftButton, {}, palo(2));
        QTest::mouseMove(dibujo, palo(0));
        QTest::mouseRelease(dibujo, Qt::LeftButton, {}, palo(0));
        QCOMPARE(filas(u"FlexMovimientos"_s), 3);
        QTest::mousePress(dibujo, Qt::LeftButton, {}, palo(1));
        QTest::mouseRelease(dibujo, Qt::LeftButton, {}, palo(0));
        QCOMPARE(filas(u"FlexMovimientos"_s), 3);
        QCOMPARE(dibujo->levantado(), -1);
        QVERIFY(texto(u"lblMovimiento"_s).endsWith(u"Por hacer, como poco: 5."_s));
        // The program goes on from here.
        for (int i = 0; i < 5; ++i)
            pulsa(u"cmdSiguienteMovimiento"_s);
        QVERIFY(texto(u"lblMovimiento"_s).endsWith(u"Conseguido, con 1 de más."_s));
    }

    void cuestionDeHanoi()
    {
        static const QRegularExpression datos(u"con (\\d+) discos.*disco (\\d+)"_s);
        const auto hallado = datos.match(texto(u"lblEnunciado_1"_s));
        QVERIFY(hallado.hasMatch());
        campo(u"txtRespuesta_1"_s)
            ->setText(u"2^(%1-%2)"_s.arg(hallado.captured(1), hallado.captured(2)));
        pulsa(u"cmdComprobar_1"_s);
        QVERIFY(texto(u"lblVeredicto_1"_s).startsWith(u"✓"_s));
    }

    /// The drawing shows what has been done: pale before, and the colours of both kinds after.
    void elArbolSeDibuja()
    {
        FormRecursion1DibujoArbol dibujo;
        dibujo.resize(400, 300);
        dibujo.ponArbol(ArbolDeLlamadas(4, false));
        const QImage palido = dibujo.grab().toImage();
        dibujo.ponHechas(9);
        QVERIFY(dibujo.grab().toImage() != palido);
    }

private:
    void mideHastaElFinal(const QString &hasta)
    {
        mide(hasta);
        QTRY_COMPARE(boton(u"cmdMedir"_s)->toolTip(), u"Calcular"_s);
    }

    void mide(const QString &hasta)
    {
        campo(u"TxtHasta"_s)->setText(hasta);
        pulsa(u"cmdMedir"_s);
    }
    int filas(const QString &rejilla) const { return modelo(rejilla)->rowCount(); }
    QString celda(const QString &rejilla, int fila, int columna) const
    {
        return modelo(rejilla)->index(fila, columna).data().toString();
    }
};

NUMORA_TEST_MAIN(TestFormRecursion1)
#include "tst_FormRecursion1.moc"
