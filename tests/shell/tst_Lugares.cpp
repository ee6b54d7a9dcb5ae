// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/FinDeSesion.h"
#include "shell/start/FormPrincipal.h"
#include "shell/start/MenuLecciones.h"
#include "tests/shell/support/LeccionesDePrueba.h"

/// Where windows stand: at first, when they come back, and side by side.
class TestLugares : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        abre();
    }
    void cleanup() { m_principal.reset(); }

    void laPrimeraLlenaElArea()
    {
        QVERIFY(marco(0)->isMaximized());
        QVERIFY(marco(1)->isMaximized());
        marco(1)->showNormal();
        QVERIFY(!marco(2)->isMaximized());
        for (const int fila : {0, 1})
            m_principal->abreLeccion(fila)->cierra();
        QTRY_COMPARE(m_area->subWindowList().size(), 1);
        marco(2)->setGeometry(20, 30, 410, 300);
        QTRY_COMPARE(Sesión().recuerda(u"Ventanas/FormDos"_s).toRect(), QRect(20, 30, 410, 300));
        abre(); // another day, as it was left
        QVERIFY(!marco(2)->isMaximized());
        QCOMPARE(marco(2)->geometry(), QRect(20, 30, 410, 300));
    }

    void unLugarFueraDelAreaVuelveAElla()
    {
        Sesión().anota(u"Ventanas/Maximizada"_s, false);
        for (const QRect &lugar : {QRect(9000, -50, 400, 300), QRect(-700, 5000, 9000, 9000)}) {
            Sesión().anota(u"Ventanas/FormTres"_s, lugar);
            abre();
            const QRect area = m_area->viewport()->rect();
            QVERIFY(area.contains(marco(3)->geometry()));
            QCOMPARE(marco(3)->size(), lugar.size().boundedTo(area.size()));
        }
    }

    /// The screen that it stood on is gone, or is smaller now.
    void laVentanaVuelveALaPantalla()
    {
        const QRect pantalla = m_principal->screen()->availableGeometry();
        for (const QRect &lugar :
             {QRect(9000, 7000, 700, 500), QRect(-4000, 10, 700, 500), QRect(10, 10, 5000, 4000)}) {
            QWidget fuera;
            fuera.setGeometry(lugar);
            Sesión().anota(u"Ventana/Geometria"_s, fuera.saveGeometry());
            abre();
            QVERIFY2(pantalla.contains(m_principal->geometry()),
                     qPrintable(QDebug::toString(m_principal->geometry())));
        }
    }

    void enMosaicoCabe()
    {
        m_principal->resize(1024, 600);
        for (int fila = 0; fila < 6; ++fila)
            marco(fila);
        for (QAction *accion : control<QMenu>(m_principal.get(), u"mnuVentana"_s)->actions()) {
            if (accion->text() == u"En &mosaico"_s)
                accion->trigger();
        }
        const auto ventanas = m_area->subWindowList();
        for (const QMdiSubWindow *una : ventanas) {
            QVERIFY(m_area->viewport()->rect().contains(una->geometry()));
            for (const QMdiSubWindow *otra : ventanas)
                QVERIFY(una == otra || !una->geometry().intersects(otra->geometry()));
        }
    }

    void laMarcaSigueALaLeccionDeDelante()
    {
        m_principal->abreLeccion(1);
        m_principal->abreLeccion(4);
        const auto marcas = [this] {
            const auto *modelo = control<QListView>(m_principal.get(), u"FlexMenu"_s)->model();
            QString todas;
            for (int fila = 0; fila < modelo->rowCount(); ++fila)
                todas +=
                    u".o#"_s.at(modelo->index(fila, 0).data(MenuLecciones::PapelMarca).toInt());
            return todas;
        };
        QCOMPARE(marcas(), u".o..#.."_s);
        QTest::keyClick(m_principal.get(), Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(marcas(), u".#..o.."_s);
        m_principal->leccionActiva()->cierra();
        QTRY_COMPARE(marcas(), u"....#.."_s);
    }

    void laSesionSiguienteAbreLoMismo()
    {
        marco(1)->showNormal();
        marco(1)->setGeometry(15, 25, 400, 320);
        marco(3);
        m_principal->leccionActiva()->abreTema(u"otro"_s);
        const QStringList antes = titulos();
        {
            const FinDeSesion fin(m_principal.get());
            for (int vez = 0; vez < 2; ++vez) { // as a signal does, which then ends the program
                QEvent salir(QEvent::Quit);
                QApplication::sendEvent(qApp, &salir);
            }
        }
        abre();
        QTRY_COMPARE(titulos(), antes);
        QCOMPARE(m_principal->leccionActiva()->windowTitle(), u"Tres"_s);
        QCOMPARE(m_principal->leccionActiva()->claveAlFrente(), u"otro"_s);
        QCOMPARE(marco(1)->geometry(), QRect(15, 25, 400, 320));
        abre(); // once, and not after an end by the user's hand
        QCoreApplication::processEvents();
        QVERIFY(titulos().isEmpty());
        marco(0);
        {
            const FinDeSesion fin(m_principal.get());
            QVERIFY(m_principal->close());
            QEvent salir(QEvent::Quit);
            QApplication::sendEvent(qApp, &salir);
        }
        abre();
        QCoreApplication::processEvents();
        QVERIFY(titulos().isEmpty());
    }

private:
    void abre()
    {
        m_principal = std::make_unique<FormPrincipal>(contenidoDePrueba());
        m_principal->show();
        QVERIFY(QTest::qWaitForWindowActive(m_principal.get()));
        m_area = control<QMdiArea>(m_principal.get(), u"AreaDeTrabajo"_s);
    }
    QMdiSubWindow *marco(int fila)
    {
        return qobject_cast<QMdiSubWindow *>(m_principal->abreLeccion(fila)->parentWidget());
    }
    QStringList titulos() const
    {
        QStringList todos;
        for (const QMdiSubWindow *ventana : m_area->subWindowList(QMdiArea::StackingOrder))
            todos << ventana->windowTitle();
        return todos;
    }

    std::unique_ptr<FormPrincipal> m_principal;
    QMdiArea *m_area = nullptr;
};

NUMORA_TEST_MAIN(TestLugares)
#include "tst_Lugares.moc"
