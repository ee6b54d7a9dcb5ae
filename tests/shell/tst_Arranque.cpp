// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/ModGlobal.h"
#include "shell/core/page/DireccionDeArranque.h"
#include "shell/core/page/EnlaceDePagina.h"
#include "shell/core/system/InstanciaUnica.h"
#include "shell/start/FormPrincipal.h"
#include "shell/start/Main.h"
#include "tests/shell/support/Entorno.h"

#include <QProcess>
#include <memory>

namespace {

/// Another process that holds the lock until it is killed.
std::unique_ptr<QProcess> procesoConCerrojo(const QString &archivo)
{
    auto otro = std::make_unique<QProcess>();
    otro->start(QStringLiteral(CERROJO), {archivo});
    return otro->waitForReadyRead() ? std::move(otro) : nullptr;
}

void mata(QProcess &proceso)
{
    proceso.kill();
    QVERIFY(proceso.waitForFinished());
}

} // namespace

class TestArranque : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    void idioma()
    {
        for (const QString &fila :
             u"=Español|uno dos=Español|-I:English=Español|-i:English=English|x -i:English=English|"
             "-i:English x=|-i:English abcdef=def|-i:English ="_s.split(u'|'))
            QCOMPARE(idiomaDeLinea(fila.section(u'=', 0, 0)), fila.section(u'=', 1));
    }

    void direccion()
    {
        for (const auto &[texto, idioma, oscuro, enlace] :
             {std::tuple{u""_s, u""_s, u"-"_s, u""_s},
              {u"?i=English"_s, u"English"_s, u"-"_s, u""_s},
              {u"?oscuro"_s, u""_s, u"1"_s, u""_s},
              {u"?oscuro=0&i=English#rsa/clave"_s, u"English"_s, u"0"_s, u"numora:rsa/clave"_s},
              {u"#primos/factorizacion?TxtN=2^67-1&OptAlgoritmo_2=1"_s, u""_s, u"-"_s,
               u"numora:primos/factorizacion?TxtN=2^67-1&OptAlgoritmo_2=1"_s}}) {
            const auto leida = leeDireccionDeArranque(QUrl(u"http://x/numora/"_s + texto));
            QCOMPARE(leida.idioma, idioma);
            QCOMPARE(leida.oscuro ? QString::number(*leida.oscuro) : u"-"_s, oscuro);
            QCOMPARE(leida.enlace, QUrl(enlace));
        }
        const auto leido = leeEnlace(
            leeDireccionDeArranque(QUrl(u"http://x/#minical/hoja?A1=1%262&A2=3"_s)).enlace);
        const QList<QPair<QString, QString>> campos{{u"A1"_s, u"1&2"_s}, {u"A2"_s, u"3"_s}};
        QCOMPARE(std::get<EnlaceDeLeccion>(leido).campos, campos);
    }

    /// A third answer is not asked for.
    void carpetaDeTrabajo()
    {
        const QString buena = Entorno::carpetaDeTrabajo();
        for (const auto &[respuestas, preguntas, hallada] :
             {std::tuple{QStringList{buena}, 1, true},
              {{u"/nada"_s, buena}, 2, true},
              {{u"/nada"_s, u"/nadie"_s, buena}, 2, false},
              {{{}, {}, buena}, 2, false}}) {
            Sesión().ponCarpeta(u"/equivocada"_s);
            Entorno::grabadora().respuestas = respuestas;
            QCOMPARE(encuentraCarpetaDeTrabajo().completa(), hallada);
            QCOMPARE(respuestas.size() - Entorno::grabadora().respuestas.size(), preguntas);
            QCOMPARE(Sesión().lee(u"Programa"_s, u"Carpeta"_s), respuestas[preguntas - 1]);
        }
    }

    void cerrojo()
    {
        const QString archivo = Sesión().carpetaDeAjustes() + u"/prueba.lock"_s;
        const auto otro = procesoConCerrojo(archivo);
        QVERIFY(otro);
        QVERIFY(InstanciaUnica(archivo).hayOtra());
        mata(*otro);
        QVERIFY(!InstanciaUnica(archivo).hayOtra());
        QVERIFY(!InstanciaUnica(u"/proc/imposible/cerrojo"_s).hayOtra());
    }

    void segundaInstancia()
    {
        const auto otro = procesoConCerrojo(Sesión().carpetaDeAjustes() + u"/Numora.lock"_s);
        QVERIFY(otro);
        const Programa programa({}, {});
        mata(*otro);
        QVERIFY(!programa.principal());
        const auto mensaje = Entorno::grabadora().unico();
        QCOMPARE(mensaje.texto, u"Ya hay abierta una sesión del sistema Numora"_s);
        QCOMPARE(mensaje.titulo, u"En ejecución"_s);
        QCOMPARE(mensaje.icono, Interlocutor::Icono::Informacion);
    }

    void sinCarpetaAcabaEnSilencio()
    {
        Sesión().ponCarpeta(u"/equivocada"_s);
        Entorno::grabadora().respuestas = {u"/nada"_s, u"/nadie"_s};
        QVERIFY(!Programa({}, {}).principal());
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
        QCOMPARE(Sesión().carpeta(), u"/nadie"_s);
    }

    /// A desktop adds the display name of a program to all titles. Qt gives the name for one only
    /// while none is set.
    void losTitulosQuedanComoSon()
    {
        const QString nombre = QApplication::applicationName();
        QCOMPARE(nombre, u"Numora"_s);
        const auto alFinal = qScopeGuard([&] { QApplication::setApplicationName(nombre); });
        QApplication::setApplicationName(u"otro"_s);
        QCOMPARE(QApplication::applicationDisplayName(), u"otro"_s);
    }

    void presentacion()
    {
        for (const QString &salida : {u"button"_s, u"Escape"_s, u"focus loss"_s}) {
            Entorno::limpia();
            QDir::setCurrent(u"/"_s);
            const Programa programa(u"-i:English"_s, {});
            QVERIFY(programa.principal());
            QCOMPARE(Idioma(), u"English"_s);
            QCOMPARE(QDir::currentPath(), Entorno::carpetaDeTrabajo());
            QVERIFY(!programa.principal()->isVisible());

            auto *acercaDe = control<QWidget>(programa.principal(), u"formAcercaDe"_s);
            QVERIFY(QTest::qWaitForWindowActive(acercaDe));
            QCOMPARE(control<QLabel>(acercaDe, u"lblVersion"_s)->text(),
                     u"Versión beta 1.5 Rev. 40"_s);
            QWidget otra;
            if (salida == u"button") {
                QTest::mouseClick(control<QPushButton>(acercaDe, u"cmdOK"_s), Qt::LeftButton);
            } else if (salida == u"Escape") {
                QTest::keyClick(acercaDe, Qt::Key_Escape);
            } else {
                otra.show();
                otra.activateWindow();
            }
            QTRY_VERIFY2(programa.principal()->isVisible(), qPrintable(salida));
            QTRY_VERIFY(!programa.principal()->findChild<QWidget *>(u"formAcercaDe"_s));
            QVERIFY(!control<QTimer>(programa.principal(), u"TimerPresentacion"_s)->isActive());
        }
    }
};

NUMORA_TEST_MAIN(TestArranque)
#include "tst_Arranque.moc"
