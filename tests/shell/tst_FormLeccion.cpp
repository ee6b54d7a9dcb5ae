// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/FormLeccion.h"
#include "shell/page/NavegadorPagina.h"
#include "shell/start/FormPrincipal.h"
#include "tests/shell/support/Entorno.h"

#include <stdexcept>

namespace {

/// A lesson with a button that starts and stops a run, as every lesson's does.
class FormCorredor : public FormLeccion
{
public:
    explicit FormCorredor(QWidget * = nullptr) : FormLeccion(u"Primos.html"_s)
    {
        setObjectName(u"FormCorredor"_s);
        agregaIntroduccion(u"Introducción"_s);
        auto *panel = new QWidget(this);
        auto *columna = new QVBoxLayout(panel);
        columna->addWidget(campo);
        columna->addWidget(boton);
        agregaTema(u"Correr"_s, u"correr"_s, panel);
        campo->setObjectName(u"campo"_s);
        m_corrida.ponEspera(this);
        conecta(boton, &QPushButton::clicked, this, &FormCorredor::boton_Click);
    }

    using FormLeccion::agregaTema;
    using FormLeccion::quitaTema;
    using FormLeccion::tieneTema;

    Tareas &tareas() { return m_tareas; }

    static inline int vivas = 0; ///< runs whose frames have not been given back
    QLineEdit *campo = new QLineEdit;
    QPushButton *boton = new QPushButton;

private:
    Tarea<> boton_Click()
    {
        if (m_corrida.enMarcha()) {
            m_corrida.detiene();
            co_return;
        }
        ++vivas;
        const auto alFinal = qScopeGuard([] { --vivas; });
        const auto marcha = m_corrida.empieza(m_tareas.billete());
        while (!marcha.billete().detenida())
            co_await marcha.billete().ceder();
        campo->setText(u"fin"_s);
    }

    BotonDeCorrida m_corrida{boton, BotonDeCorrida::calcular(), BotonDeCorrida::detener()};
    TareasDeVentana m_tareas{this, parada()};
};

} // namespace

class TestFormLeccion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    void F1AbreLaPaginaAlSoltar()
    {
        FormCorredor leccion;
        muestra(leccion);
        QDir::setCurrent(u"/"_s);
        QTest::keyPress(leccion.campo, Qt::Key_F1);
        QKeyEvent mantenida(QEvent::KeyRelease, Qt::Key_F1, {}, {}, /*autorep*/ true);
        QApplication::sendEvent(leccion.campo, &mantenida);
        QVERIFY(Entorno::grabadora().abiertas.isEmpty());
        QTest::keyRelease(leccion.campo, Qt::Key_F1);
        QDir::setCurrent(Entorno::carpetaDeTrabajo());
        QCOMPARE(Entorno::grabadora().abiertas,
                 QStringList{Entorno::carpetaDeTrabajo() + u"\\Doc\\Primos.html"_s});
    }

    void lasFichasTraenSuPanelAlFrente()
    {
        FormCorredor leccion;
        muestra(leccion);
        auto *temas = control<QTabBar>(&leccion, u"tsTema"_s);
        auto *intro = control<QWidget>(&leccion, u"PanelFicha_0"_s);
        auto *correr = control<QWidget>(&leccion, u"PanelFicha_1"_s);
        leccion.campo->setText(u"se queda"_s);
        for (const int delante : {0, 1}) {
            QTest::mouseClick(temas, Qt::LeftButton, {}, temas->tabRect(delante).center());
            QCOMPARE(intro->isVisible(), delante == 0);
            QCOMPARE(correr->isVisible(), delante == 1);
        }
        auto *pagina = control<NavegadorPagina>(&leccion, u"wbIntro"_s);
        QVERIFY(pagina->toPlainText().contains(u"primo"_s));

        QWidget *panel = leccion.boton->parentWidget();
        leccion.quitaTema(u"no existe"_s);
        leccion.quitaTema(u"correr"_s);
        QVERIFY(!leccion.tieneTema(u"correr"_s) && !panel->isVisible() && intro->isVisible());
        leccion.agregaTema(u"Correr"_s, u"correr"_s, panel);
        QVERIFY(leccion.tieneTema(u"correr"_s) && !panel->isVisible());
        temas->setCurrentIndex(1);
        QVERIFY(panel->isVisible());
        QCOMPARE(leccion.campo->text(), u"se queda"_s);
    }

    void escapeDetieneLaCorrida()
    {
        FormCorredor leccion;
        muestra(leccion);
        leccion.campo->setFocus();
        QTest::mouseClick(leccion.boton, Qt::LeftButton);
        QCOMPARE(leccion.boton->toolTip(), u"Detener cálculo"_s);
        QCOMPARE(leccion.cursor().shape(), Qt::WaitCursor);
        QTest::qWait(30);
        QTest::keyClick(leccion.campo, Qt::Key_Escape);
        QTRY_COMPARE(leccion.campo->text(), u"fin"_s);
        QCOMPARE(leccion.boton->accessibleName(), u"Calcular"_s);
        QCOMPARE(leccion.cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(FormCorredor::vivas, 0);
    }

    void laQueAcabaTardeNoTocaElBoton()
    {
        FormCorredor leccion;
        muestra(leccion);
        for (int clic = 1; clic <= 3; ++clic) // starts, stops, starts another
            leccion.boton->click();
        QTRY_COMPARE(FormCorredor::vivas, 1);
        QCOMPARE(leccion.boton->toolTip(), u"Detener cálculo"_s);
    }

    /// The run goes with its window: nothing computes on out of sight.
    void cerrarDuranteLaCorrida()
    {
        for (const int espera : {0, 50}) { // in the first yield, and later
            QPointer<FormCorredor> leccion = new FormCorredor;
            muestra(*leccion);
            QTest::mouseClick(leccion->boton, Qt::LeftButton);
            QCOMPARE(FormCorredor::vivas, 1);
            QTest::qWait(espera);
            leccion->cierra();
            QTRY_VERIFY(!leccion);
            QCOMPARE(FormCorredor::vivas, 0);
        }
    }

    void cerrarElProgramaDuranteLaCorrida()
    {
        FormPrincipal principal(dosLecciones());
        principal.show();
        QPointer<FormCorredor> una = corre(principal, 0);
        QPointer<FormCorredor> otra = corre(principal, 1);
        QTest::qWait(50);
        QVERIFY(principal.close());
        QTRY_VERIFY(!una && !otra);
        QCOMPARE(FormCorredor::vivas, 0);
    }

    void unaLeccionQueSeCierraNoEstorbaALaNueva()
    {
        FormPrincipal principal(dosLecciones());
        principal.show();
        QPointer<FormCorredor> vieja = corre(principal, 0);
        QTest::qWait(30);
        vieja->cierra();
        const FormLeccion *recien = principal.abreLeccion(0);
        QVERIFY(recien != vieja);
        QTRY_VERIFY(!vieja);
        QCOMPARE(principal.abreLeccion(0), recien);
    }

    void unErrorAcabaSoloElSuceso()
    {
        FormCorredor leccion;
        conecta(leccion.campo, &QLineEdit::textChanged, &leccion, [](const QString &texto) {
            if (texto == u"mal"_s)
                throw ErrorEjecucion(ErrorEjecucion::Desbordamiento);
            if (texto == u"peor"_s)
                throw std::bad_alloc();
            throw std::out_of_range("lejos");
        });
        for (const auto &[escrito, dicho] : {std::pair{u"mal"_s, u"Desbordamiento."_s},
                                             {u"peor"_s, u"Memoria insuficiente."_s},
                                             {u"lo peor"_s, u"Error interno.\nlejos"_s}}) {
            leccion.campo->setText(escrito);
            const auto mensaje = Entorno::grabadora().unico();
            QCOMPARE(mensaje.titulo, u"Error en tiempo de ejecución"_s);
            QCOMPARE(mensaje.texto, dicho);
        }
    }

private:
    static Contenido dosLecciones()
    {
        const auto nueva = [](QWidget *) { return new FormCorredor; };
        Contenido contenido;
        contenido.lecciones = {{u"PRIMOS"_s, u"Una"_s, nueva}, {u"RSA"_s, u"Otra"_s, nueva}};
        return contenido;
    }
    static FormCorredor *corre(FormPrincipal &principal, int fila)
    {
        auto *leccion = static_cast<FormCorredor *>(principal.abreLeccion(fila));
        leccion->boton->click();
        return leccion;
    }
    static void muestra(FormCorredor &leccion)
    {
        leccion.resize(600, 400);
        leccion.show();
        control<QTabBar>(&leccion, u"tsTema"_s)->setCurrentIndex(1);
        QVERIFY(QTest::qWaitForWindowActive(&leccion));
    }
};

NUMORA_TEST_MAIN(TestFormLeccion)
#include "tst_FormLeccion.moc"
