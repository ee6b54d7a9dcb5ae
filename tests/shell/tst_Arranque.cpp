// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/ModGlobal.h"
#include "shell/core/system/InstanciaUnica.h"
#include "shell/start/FormPrincipal.h"
#include "shell/start/Main.h"
#include "tests/shell/support/Entorno.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Another process that holds the lock until it is killed.
pid_t procesoConCerrojo(const QString &archivo)
{
    int tubo[2];
    if (pipe(tubo) != 0)
        return -1;
    const pid_t hijo = fork();
    if (hijo == 0) {
        const InstanciaUnica suya(archivo);
        if (write(tubo[1], "x", 1) == 1)
            pause();
        _exit(0);
    }
    char listo = 0;
    if (read(tubo[0], &listo, 1) != 1)
        return -1;
    close(tubo[0]);
    close(tubo[1]);
    return hijo;
}

} // namespace

class TestArranque : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    void idioma_data()
    {
        QTest::addColumn<QString>("linea");
        QTest::addColumn<QString>("idioma");
        QTest::newRow("none") << QString() << u"Español"_s;
        QTest::newRow("other words") << u"uno dos"_s << u"Español"_s;
        QTest::newRow("alone") << u"-i:English"_s << u"English"_s;
        QTest::newRow("last of two") << u"x -i:English"_s << u"English"_s;
        QTest::newRow("a word after it") << u"-i:English x"_s << QString();
        QTest::newRow("a long word after it") << u"-i:English abcdef"_s << u"def"_s;
        QTest::newRow("blank at the end") << u"-i:English "_s << QString();
        QTest::newRow("capital") << u"-I:English"_s << u"Español"_s;
    }
    void idioma()
    {
        QFETCH(QString, linea);
        QTEST(idiomaDeLinea(linea), "idioma");
    }

    void carpetaDeTrabajo_data()
    {
        QTest::addColumn<QStringList>("respuestas");
        QTest::addColumn<int>("preguntas");
        QTest::addColumn<bool>("hallada");
        const QString buena = Entorno::carpetaDeTrabajo();
        QTest::newRow("first answer") << QStringList{buena} << 1 << true;
        QTest::newRow("second answer") << QStringList{u"/nada"_s, buena} << 2 << true;
        QTest::newRow("third is not asked")
            << QStringList{u"/nada"_s, u"/nadie"_s, buena} << 2 << false;
        QTest::newRow("cancelled twice") << QStringList{QString(), QString(), buena} << 2 << false;
    }
    void carpetaDeTrabajo()
    {
        QFETCH(QStringList, respuestas);
        Sesión().ponCarpeta(u"/equivocada"_s);
        Entorno::grabadora().respuestas = respuestas;
        QTEST(encuentraCarpetaDeTrabajo().completa(), "hallada");
        const auto preguntas = int(respuestas.size() - Entorno::grabadora().respuestas.size());
        QTEST(preguntas, "preguntas");
        QCOMPARE(Sesión().lee(u"Programa"_s, u"Carpeta"_s), respuestas.value(preguntas - 1));
    }

    void cerrojo()
    {
        const QString archivo = Sesión().carpetaDeAjustes() + u"/prueba.lock"_s;
        const pid_t otro = procesoConCerrojo(archivo);
        QVERIFY(otro > 0);
        QVERIFY(InstanciaUnica(archivo).hayOtra());
        kill(otro, SIGKILL);
        waitpid(otro, nullptr, 0);
        QVERIFY(!InstanciaUnica(archivo).hayOtra());
        QVERIFY(!InstanciaUnica(u"/proc/imposible/cerrojo"_s).hayOtra());
    }

    void segundaInstancia()
    {
        const pid_t otro = procesoConCerrojo(Sesión().carpetaDeAjustes() + u"/Numora.lock"_s);
        const Programa programa({}, {});
        kill(otro, SIGKILL);
        waitpid(otro, nullptr, 0);
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

    void presentacion_data()
    {
        QTest::addColumn<int>("salida");
        QTest::newRow("button") << 0;
        QTest::newRow("Escape") << 1;
        QTest::newRow("focus loss") << 2;
    }
    void presentacion()
    {
        QFETCH(int, salida);
        QDir::setCurrent(u"/"_s);
        const Programa programa(u"-i:English"_s, {});
        QVERIFY(programa.principal());
        QCOMPARE(Idioma(), u"English"_s);
        QCOMPARE(QDir::currentPath(), Entorno::carpetaDeTrabajo());
        QVERIFY(!programa.principal()->isVisible());

        auto *acercaDe = control<QWidget>(programa.principal(), u"formAcercaDe"_s);
        QVERIFY(QTest::qWaitForWindowActive(acercaDe));
        QCOMPARE(control<QLabel>(acercaDe, u"lblVersion"_s)->text(), u"Versión beta 1.5 Rev. 40"_s);
        if (salida == 0)
            QTest::mouseClick(control<QPushButton>(acercaDe, u"cmdOK"_s), Qt::LeftButton);
        else if (salida == 1)
            QTest::keyClick(acercaDe, Qt::Key_Escape);
        QWidget otra;
        if (salida == 2) {
            otra.show();
            otra.activateWindow();
        }
        QTRY_VERIFY(programa.principal()->isVisible());
        QTRY_VERIFY(!programa.principal()->findChild<QWidget *>(u"formAcercaDe"_s));
        const auto *reloj = control<QTimer>(programa.principal(), u"TimerPresentacion"_s);
        QVERIFY(!reloj->isActive());
    }
};

NUMORA_TEST_MAIN(TestArranque)
#include "tst_Arranque.moc"
