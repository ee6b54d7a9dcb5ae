#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/frame/Evento.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/NavegadorPagina.h"
#include "shell/start/FormPrincipal.h"
#include "tests/shell/support/Entorno.h"

#include <QDir>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

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
        conecta(boton, &QPushButton::clicked, this, &FormCorredor::boton_Click);
    }

    using FormLeccion::agregaTema;
    using FormLeccion::quitaTema;
    using FormLeccion::tieneTema;

    QLineEdit *campo = new QLineEdit;
    QPushButton *boton = new QPushButton;
    bool acabada = false;

protected:
    QAbstractButton *botonDeParada() const override { return boton; }

private:
    void boton_Click()
    {
        if (corrida().enCurso()) {
            corrida().detener();
            return;
        }
        const Corrida::Tramo tramo(corrida());
        corrida().permitir();
        while (!corrida().detenida())
            corrida().ceder();
        campo->setText(u"fin"_s); // the window must still be there
        acabada = true;
    }
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
        QTest::mouseClick(temas, Qt::LeftButton, {}, temas->tabRect(0).center());
        QVERIFY(intro->isVisible() && !correr->isVisible());
        auto *pagina = control<NavegadorPagina>(&leccion, u"wbIntro"_s);
        QVERIFY(pagina->toPlainText().contains(u"primo"_s));
        QTest::mouseClick(temas, Qt::LeftButton, {}, temas->tabRect(1).center());
        QVERIFY(!intro->isVisible() && correr->isVisible());
        QCOMPARE(leccion.campo->text(), u"se queda"_s);
    }

    void unTemaVaYViene()
    {
        FormCorredor leccion;
        muestra(leccion);
        auto *temas = control<QTabBar>(&leccion, u"tsTema"_s);
        QWidget *panel = leccion.boton->parentWidget();
        leccion.campo->setText(u"se queda"_s);
        leccion.quitaTema(u"no existe"_s);
        leccion.quitaTema(u"correr"_s);
        QVERIFY(!leccion.tieneTema(u"correr"_s) && !panel->isVisible());
        QVERIFY(control<QWidget>(&leccion, u"PanelFicha_0"_s)->isVisible());
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
        QTimer::singleShot(50, [&] { QTest::keyClick(leccion.campo, Qt::Key_Escape); });
        QTest::mouseClick(leccion.boton, Qt::LeftButton);
        QVERIFY(leccion.acabada);
    }

    void cerrarDuranteLaCorrida()
    {
        QPointer<FormCorredor> leccion = new FormCorredor;
        muestra(*leccion);
        bool acabada = false;
        QTimer::singleShot(50, [&] {
            leccion->cierra();
            QVERIFY(leccion && !leccion->isVisible());
        });
        connect(leccion, &QObject::destroyed, this, [&] { acabada = true; });
        QTest::mouseClick(leccion->boton, Qt::LeftButton);
        QTRY_VERIFY(acabada);
        QVERIFY(!leccion);
    }

    void cerrarElProgramaDuranteLaCorrida()
    {
        Contenido contenido;
        contenido.lecciones = {{u"PRIMOS"_s, u"Una"_s, nueva}, {u"RSA"_s, u"Otra"_s, nueva}};
        auto principal = std::make_unique<FormPrincipal>(contenido);
        principal->show();
        QPointer<FormCorredor> una = abre(*principal, 0);
        QPointer<FormCorredor> otra = abre(*principal, 1);
        // The second run starts inside a yield of the first.
        QTimer::singleShot(30, [&] { otra->boton->click(); });
        QTimer::singleShot(80, [&] { QVERIFY(principal->close()); });
        una->boton->click();
        QVERIFY(!principal->isVisible());
        QTRY_VERIFY(!una && !otra);
    }

    void unaLeccionQueSeCierraNoEstorbaALaNueva()
    {
        Contenido contenido;
        contenido.lecciones = {{u"PRIMOS"_s, u"Una"_s, nueva}};
        FormPrincipal principal(contenido);
        principal.show();
        QPointer<FormCorredor> vieja = abre(principal, 0);
        FormCorredor *recien = nullptr;
        QTimer::singleShot(30, [&] {
            vieja->cierra();
            recien = abre(principal, 0);
        });
        vieja->boton->click();
        QVERIFY(recien && recien != vieja);
        QTRY_VERIFY(!vieja);
        QCOMPARE(principal.abreLeccion(0), recien);
    }

    void unErrorAcabaSoloElSuceso()
    {
        FormCorredor leccion;
        conecta(leccion.campo, &QLineEdit::textChanged, &leccion, [](const QString &texto) {
            if (texto == u"mal"_s)
                throw ErrorEjecucion(ErrorEjecucion::Desbordamiento);
            throw std::bad_alloc();
        });
        leccion.campo->setText(u"mal"_s);
        const auto primero = Entorno::grabadora().unico();
        QCOMPARE(primero.titulo, u"Error en tiempo de ejecución"_s);
        QCOMPARE(primero.texto, u"Desbordamiento."_s);
        leccion.campo->setText(u"peor"_s);
        QCOMPARE(Entorno::grabadora().unico().texto, u"Memoria insuficiente."_s);
    }

private:
    static FormLeccion *nueva(QWidget *) { return new FormCorredor; }
    static FormCorredor *abre(FormPrincipal &principal, int fila)
    {
        return static_cast<FormCorredor *>(principal.abreLeccion(fila));
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
