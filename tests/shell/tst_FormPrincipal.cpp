// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/ReproductorAVI.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Aspecto.h"
#include "shell/start/FinDeSesion.h"
#include "shell/start/FormPrincipal.h"
#include "shell/start/MenuLecciones.h"
#include "shell/start/PanelBienvenida.h"
#include "shell/start/TarjetasDeLecciones.h"
#include "tests/shell/support/LeccionesDePrueba.h"

#include <csignal>
#include <cstddef>

class TestFormPrincipal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m_principal = std::make_unique<FormPrincipal>(contenidoDePrueba());
        m_principal->show();
        QVERIFY(QTest::qWaitForWindowActive(m_principal.get()));
        m_menu = control<QListView>(m_principal.get(), u"FlexMenu"_s);
        m_area = control<QMdiArea>(m_principal.get(), u"AreaDeTrabajo"_s);
    }
    void cleanup() { m_principal.reset(); }

    void elMenuSeLlevaConElRatonYConElTeclado()
    {
        mueveA(2);
        mueveA(5);
        QCOMPARE(resaltadas(), QList<int>{5});
        QTest::mouseMove(m_menu->viewport(), {5, m_menu->viewport()->height() - 2});
        QCOMPARE(resaltadas(), QList<int>{5});
        m_menu->setFocus();
        m_menu->setCurrentIndex(m_menu->model()->index(0, 0));
        QTest::keyClick(m_menu, Qt::Key_Down);
        QCOMPARE(resaltadas(), QList<int>{1});
        QTest::keyClick(m_menu, Qt::Key_Return);
        QCOMPARE(titulos(), QStringList{u"Uno"_s});
        // A click below the rows gives the menu the keyboard, and makes none of them current.
        Contenido conHoja = contenidoDePrueba();
        conHoja.hojaDeCalculo = conHoja.lecciones.first();
        const FormPrincipal otra(conHoja);
        QTest::keyClick(control<QListView>(&otra, u"FlexMenu"_s), Qt::Key_Return);
        QVERIFY(otra.findChildren<FormLeccion *>().isEmpty());
    }

    void elClicAbreUnaSolaVentana()
    {
        pulsa(2);
        QCOMPARE(titulos(), QStringList{u"Dos"_s});
        pulsa(4);
        pulsa(2);
        QCOMPARE(titulos(), (QStringList{u"Dos"_s, u"Cuatro"_s}));
        QCOMPARE(m_principal->leccionActiva()->windowTitle(), u"Dos"_s);
        auto *ventanas = control<QMenu>(m_principal.get(), u"mnuVentana"_s);
        Q_EMIT ventanas->aboutToShow();
        const auto ordenes = ventanas->actions().last(2);
        QCOMPARE(ordenes[1]->text(), u"&2  Cuatro"_s);
        QVERIFY(ordenes[0]->isChecked() && !ordenes[1]->isChecked());
        pulsa(6);
        QTest::mouseClick(m_menu->viewport(), Qt::LeftButton, {},
                          {5, m_menu->viewport()->height() - 2});
        QCOMPARE(titulos().size(), 2);
        for (const int ninguna : {-2, 99, int(FormPrincipal::FilaHojaDeCalculo)})
            QVERIFY(!m_principal->abreLeccion(ninguna));
    }

    void laBienvenidaSeVeSinVentanas()
    {
        auto *bienvenida = m_area->findChild<PanelBienvenida *>();
        QVERIFY(bienvenida->isVisible());
        QCOMPARE(bienvenida->geometry(), m_area->viewport()->geometry());
        FormLeccion *una = m_principal->abreLeccion(0);
        FormLeccion *otra = m_principal->abreLeccion(1);
        QVERIFY(!bienvenida->isVisible());
        una->cierra();
        QVERIFY(!bienvenida->isVisible());
        otra->setFocus();
        otra->cierra();
        QVERIFY(bienvenida->isVisible());
        QVERIFY(bienvenida->isAncestorOf(QApplication::focusWidget()));
        QVERIFY(!control<QAction>(m_principal.get(), u"mnuCerrar"_s)->isEnabled());
        m_principal->hide();
        m_principal->show();
        QVERIFY(bienvenida->isVisible());
        m_principal->resize(m_principal->size() - QSize(100, 50));
        QCOMPARE(bienvenida->geometry(), m_area->viewport()->geometry());
    }

    void lasTarjetasAbrenLecciones()
    {
        auto *tarjetas = control<QListView>(m_principal.get(), u"TarjetasDeLecciones"_s);
        const auto pulsaTarjeta = [&](int fila) {
            const QRect tarjeta = tarjetas->visualRect(tarjetas->model()->index(fila, 0));
            QTest::mouseClick(tarjetas->viewport(), Qt::LeftButton, {}, tarjeta.center());
        };
        pulsaTarjeta(6); // the lesson that does not exist yet
        QVERIFY(titulos().isEmpty());
        pulsaTarjeta(2);
        QCOMPARE(titulos(), QStringList{u"Dos"_s});
        m_principal->leccionActiva()->cierra();
        QTRY_VERIFY(titulos().isEmpty());

        m_menu->setFocus();
        QTest::keyClick(m_menu, Qt::Key_F6);
        QVERIFY(tarjetas->hasFocus());
        tarjetas->setCurrentIndex(tarjetas->model()->index(0, 0));
        QTest::keyClick(tarjetas, Qt::Key_Right);
        QTest::keyClick(tarjetas, Qt::Key_Return);
        QCOMPARE(titulos(), QStringList{u"Uno"_s});
    }

    void lasTarjetasCabenEnElAncho()
    {
        MenuLecciones lecciones(contenidoDePrueba().lecciones);
        for (const auto &[letras, columnas] : {std::pair{400, 3}, {90, 2}, {50, 1}, {10, 1}}) {
            TarjetasDeLecciones tarjetas;
            tarjetas.setModel(&lecciones);
            tarjetas.resize(letras * tarjetas.fontMetrics().averageCharWidth(), 300);
            tarjetas.show();
            QSet<int> izquierdas;
            for (int fila = 0; fila < lecciones.rowCount(); ++fila) {
                const QRect tarjeta = tarjetas.visualRect(lecciones.index(fila, 0));
                QVERIFY(tarjeta.right() < std::max(tarjetas.viewport()->width(), tarjeta.width()));
                izquierdas << tarjeta.left();
            }
            QCOMPARE(int(izquierdas.size()), columnas);
        }
    }

    void teclasDeVentanas()
    {
        for (int fila : {0, 1})
            m_principal->abreLeccion(fila);
        QLineEdit *campo = abreCampo(2);
        campo->setFocus();
        QTest::keyClick(campo, Qt::Key_F6);
        QVERIFY(m_menu->hasFocus());
        QTest::keyClick(m_menu, Qt::Key_F6);
        QVERIFY(campo->hasFocus());
        QTest::keyClick(campo, Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(m_principal->leccionActiva()->windowTitle(), u"Cero"_s);
        QTest::keyClick(m_principal.get(), Qt::Key_Backtab,
                        Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(m_principal->leccionActiva()->windowTitle(), u"Dos"_s);
        QTest::keyClick(campo, Qt::Key_W, Qt::ControlModifier);
        QTRY_COMPARE(titulos(), (QStringList{u"Cero"_s, u"Uno"_s}));
        conControl(Qt::Key_F4);
        QTRY_COMPARE(titulos().size(), 1);
    }

    void elTamanoDeLaLetra()
    {
        const qreal normal = QApplication::font().pointSizeF();
        for (const auto &[tecla, notado] :
             {std::pair{Qt::Key_Plus, 1}, {Qt::Key_Plus, 2}, {Qt::Key_Minus, 1}, {Qt::Key_0, 0}}) {
            conControl(tecla);
            QCOMPARE(QApplication::font().pointSizeF(), normal + notado);
            QCOMPARE(Sesión().recuerda(u"Ventana/Letra"_s).toInt(), notado);
        }
        for (int i = 0; i < 60; ++i)
            conControl(Qt::Key_Plus);
        QCOMPARE(QApplication::font().pointSizeF(), 32.0);
        conControl(Qt::Key_0);
    }

    void elLogotipo()
    {
        auto *logo = control<ReproductorAVI>(m_principal.get(), u"AniLogo"_s);
        QCOMPARE(logo->toolTip(), u"Ir a la página web del Departamento"_s);
        QTest::mouseClick(logo, Qt::LeftButton);
        QCOMPARE(Entorno::grabadora().abiertas, QStringList{Sesión().DptoURL()});
        logo->para();
        QTest::mousePress(logo, Qt::RightButton);
        const QImage parado = logo->cursor().pixmap().toImage();
        logo->reproduce(ReproductorAVI::Modo::Continuo);
        QTest::mousePress(logo, Qt::RightButton);
        QVERIFY(logo->cursor().pixmap().toImage() != parado);
        QCOMPARE(Entorno::grabadora().abiertas.size(), 1);
        Sesión().guarda(u"Enlaces"_s, u"Departamento"_s, QString());
        QTest::mouseClick(logo, Qt::LeftButton);
        QCOMPARE(Entorno::grabadora().abiertas.size(), 1);
    }

    void lasHerramientas()
    {
        Entorno::grabadora().hayProgramas = false;
        control<QAction>(m_principal.get(), u"Calculadora"_s)->trigger();
        QCOMPARE(Entorno::grabadora().unico().texto,
                 u"No se encuentra ninguna calculadora en este equipo."_s);
        QVERIFY(!control<QAction>(m_principal.get(), u"calc"_s)->isEnabled());

        auto *ayuda = control<QAction>(m_principal.get(), u"Algoritmos"_s);
        ayuda->trigger();
        QVERIFY(Entorno::grabadora().abiertas.isEmpty());
        QVERIFY(!ayuda->isEnabled());
        FormLeccion *leccion = m_principal->abreLeccion(3);
        ayuda->trigger();
        QCOMPARE(Entorno::grabadora().abiertas, QStringList{leccion->URL()});
        QCOMPARE(leccion->URL(), Entorno::carpetaDeTrabajo() + u"\\Doc\\Tres.html"_s);
        leccion->setObjectName(u"FormNavegador"_s);
        ayuda->trigger();
        QCOMPARE(Entorno::grabadora().abiertas.size(), 1);
    }

    /// Places are noted when they change: the end of the program finds nothing to write.
    void recuerdaLosLugares()
    {
        const QRect lugar(12, 18, 420, 310);
        FormLeccion *leccion = m_principal->abreLeccion(1);
        leccion->parentWidget()->showNormal();
        leccion->parentWidget()->setGeometry(lugar);
        const auto notado = [] { return Sesión().recuerda(u"Ventanas/FormUno"_s).toRect(); };
        QTRY_COMPARE(notado(), lugar);
        QVERIFY(!Sesión().recuerda(u"Ventana/Geometria"_s).toByteArray().isEmpty());
        leccion->cierra();
        QTRY_VERIFY(titulos().isEmpty());
        QCOMPARE(m_principal->abreLeccion(1)->parentWidget()->geometry(), lugar);
        Sesión().anota(u"Ventanas/FormUno"_s, QRect());
        m_principal->close();
        QCOMPARE(notado(), QRect());
    }

    /// All lessons close or none, whatever each of them was told.
    void preguntaATodasAntesDeCerrar()
    {
        for (const int fila : {0, 1, 2})
            abreCampo(fila)->setText(fila > 0 ? u"x"_s : QString());
        QVERIFY(!m_principal->close());
        QCOMPARE(Entorno::grabadora().confirmaciones.size(), 1);
        QCOMPARE(titulos().size(), 3);
        Entorno::grabadora().respondeSi = true;
        QVERIFY(m_principal->close());
        QCOMPARE(Entorno::grabadora().confirmaciones.size(), 3);
        QTRY_VERIFY(titulos().isEmpty());
    }

    /// With the real box: the event of the close is over when the user answers.
    void cierraCuandoSeContesta()
    {
        abreCampo(0)->setText(u"x"_s);
        const auto grabadora = ponInterlocutor(nullptr);
        const auto contesta = [&](QMessageBox::StandardButton boton) {
            for (int vez = 0; vez < 2; ++vez) // a second try while it is asked asks nothing
                QVERIFY(!m_principal->close());
            const auto cajas = m_principal->findChildren<QMessageBox *>();
            QCOMPARE(cajas.size(), 1);
            cajas.first()->button(boton)->click();
            QTRY_VERIFY(m_principal->findChildren<QMessageBox *>().isEmpty());
        };
        contesta(QMessageBox::No);
        QVERIFY(m_principal->isVisible());
        contesta(QMessageBox::Yes);
        QTRY_VERIFY(!m_principal->isVisible());
        ponInterlocutor(std::make_unique<Grabadora>());
    }

    void alAcabarLaSesionNoPregunta()
    {
        QList<int> senales{0}; // the word of the desktop
#if !defined(Q_OS_WIN)         // which has no others for a program with windows
        senales << SIGTERM << SIGHUP;
#endif
        for (const int senal : senales) {
            init();
            const FinDeSesion fin(m_principal.get());
            QLineEdit *campo = abreCampo(1);
            const auto guardado = [] { return Sesión().lee(u"P"_s, u"Uno"_s); };
            campo->setText(u"al preguntar la sesión"_s);
            // Nobody looks at the manager of a session that may still go on.
            alignas(std::max_align_t) std::byte gestor[64]{};
            Q_EMIT qApp->commitDataRequest(reinterpret_cast<QSessionManager &>(gestor));
            QCOMPARE(guardado(), campo->text());
            QVERIFY(m_principal->isVisible());
            campo->setText(u"a medias"_s);
            const QPointer<QWidget> acercaDe = m_principal->muestraAcercaDe(true);
            QEvent salir(QEvent::Quit);
            senal == 0 ? QApplication::sendEvent(qApp, &salir) : ::raise(senal) == 0;
            QTRY_VERIFY(!m_principal->isVisible());
            QVERIFY(Entorno::grabadora().confirmaciones.isEmpty());
            QCOMPARE(guardado(), u"a medias"_s);
            // The box that shows the main window when it goes away does so no more.
            if (acercaDe)
                acercaDe->close();
            QVERIFY(!m_principal->isVisible());
        }
    }

    void losColores()
    {
        control<QAction>(m_principal.get(), u"mnuTemaOscuro"_s)->trigger();
        QTRY_VERIFY(m_principal->palette().window().color().lightness() < 100);
        QVERIFY(m_area->background().color().lightness() < 100);
        control<QAction>(m_principal.get(), u"mnuTemaClaro"_s)->trigger();
        QTRY_VERIFY(m_principal->palette().window().color().lightness() > 200);
        QVERIFY(m_area->background().color().lightness() > 200);
        QCOMPARE(Sesión().recuerda(u"Ventana/Tema"_s).toInt(), int(Aspecto::Tema::Claro));
    }

private:
    QLineEdit *abreCampo(int fila)
    {
        return m_principal->abreLeccion(fila)->findChild<QLineEdit *>(u"PanelFicha_0"_s);
    }
    void conControl(Qt::Key tecla)
    {
        QTest::keyClick(m_principal.get(), tecla, Qt::ControlModifier);
    }
    QPoint centroDe(int fila) const
    {
        return m_menu->visualRect(m_menu->model()->index(fila, 0)).center();
    }
    void mueveA(int fila) const
    {
        QTest::mouseMove(m_menu->viewport(), centroDe(fila));
    }
    void pulsa(int fila) const
    {
        QTest::mouseClick(m_menu->viewport(), Qt::LeftButton, {}, centroDe(fila));
    }
    QList<int> resaltadas() const
    {
        QList<int> filas;
        for (int f = 0; f < m_menu->model()->rowCount(); ++f) {
            if (m_menu->model()->index(f, 0).data(MenuLecciones::PapelResaltado).toBool())
                filas << f;
        }
        return filas;
    }
    QStringList titulos() const
    {
        QStringList todos;
        const auto ventanas = m_area->subWindowList();
        for (const QMdiSubWindow *ventana : ventanas)
            todos << ventana->windowTitle();
        return todos;
    }

    std::unique_ptr<FormPrincipal> m_principal;
    QListView *m_menu = nullptr;
    QMdiArea *m_area = nullptr;
};

NUMORA_TEST_MAIN(TestFormPrincipal)
#include "tst_FormPrincipal.moc"
