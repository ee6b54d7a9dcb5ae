// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/ModGlobal.h"
#include "shell/core/Traduccion.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/NavegadorPagina.h"
#include "tests/shell/support/Entorno.h"

#include <QDir>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace {

class FormConPagina : public FormLeccion
{
public:
    FormConPagina() : FormLeccion(u"Primos.html"_s) { agregaIntroduccion(u"Introducción"_s); }
};

void escribe(const QString &ruta, const QByteArray &contenido)
{
    QFile archivo(ruta);
    QVERIFY2(archivo.open(QIODevice::WriteOnly), qPrintable(ruta));
    archivo.write(contenido);
}

} // namespace

/// Pages in another language, in a working folder that holds a few.
class TestPaginaTraducida : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QDir carpeta(m_carpeta.path());
        QVERIFY(carpeta.mkpath(u"Doc/English"_s) && carpeta.mkpath(u"Doc/Català"_s) &&
                carpeta.mkpath(u"Fuera"_s) && carpeta.mkpath(u"Doc/Français/Primos.html"_s) &&
                carpeta.mkpath(u"Doc/Español"_s));
        escribe(carpeta.filePath(u"Doc/Primos.html"_s), "<p>español</p>");
        for (const QString &otra :
             {u"Doc/English"_s, u"Doc/Català"_s, u"Doc/Español"_s, u"Fuera"_s})
            escribe(carpeta.filePath(otra + u"/Primos.html"_s), "<p>traducida</p>");
    }
    void init()
    {
        Entorno::limpia();
        Sesión().ponCarpeta(m_carpeta.path());
    }

    void pagina_data()
    {
        QTest::addColumn<QString>("idioma");
        QTest::addColumn<QString>("esperada"); // within the working folder
        const QString propia = u"\\Doc\\Primos.html"_s;
        QTest::newRow("Spanish") << u"Español"_s << propia;
        QTest::newRow("English") << u"English"_s << u"\\Doc\\English\\Primos.html"_s;
        QTest::newRow("accents") << u"Català"_s << u"\\Doc\\Català\\Primos.html"_s;
        QTest::newRow("letter case") << u"ENGLISH"_s << u"\\Doc\\ENGLISH\\Primos.html"_s;
        QTest::newRow("no such language") << u"Klingon"_s << propia;
        QTest::newRow("a folder in the page's place") << u"Français"_s << propia;
        QTest::newRow("empty") << QString() << propia;
        QTest::newRow("the folder itself") << u"."_s << propia;
        QTest::newRow("the folder above") << u".."_s << propia;
        QTest::newRow("out by slashes") << u"../Fuera"_s << propia;
        QTest::newRow("out by back-slashes") << u"..\\Fuera"_s << propia;
        QTest::newRow("absolute") << m_carpeta.filePath(u"Fuera"_s) << propia;
        QTest::newRow("deeper") << u"English/../English"_s << propia;
        QTest::newRow("NUL") << u"English"_s + QChar(u'\0') << propia;
        QTest::newRow("very long") << QString(100'000, u'x') << propia;
    }
    void pagina()
    {
        QFETCH(QString, idioma);
        QFETCH(QString, esperada);
        const QString carpeta = m_carpeta.path();
        QCOMPARE(PaginaTraducida(carpeta + u"\\Doc\\Primos.html"_s, idioma), carpeta + esperada);
        const QString sinTraducir = carpeta + u"\\Doc\\Euclides.html"_s;
        QCOMPARE(PaginaTraducida(sinTraducir, idioma), sinTraducir);
    }

    void laMuestraLaLeccion_data()
    {
        QTest::addColumn<QString>("idioma");
        QTest::addColumn<QString>("abierta");
        QTest::newRow("Spanish") << u"Español"_s << u"\\Doc\\Primos.html"_s;
        QTest::newRow("English") << u"English"_s << u"\\Doc\\English\\Primos.html"_s;
    }
    void laMuestraLaLeccion()
    {
        QFETCH(QString, idioma);
        QFETCH(QString, abierta);
        Idioma() = idioma;
        FormConPagina leccion;
        leccion.show();
        const auto *pagina = control<NavegadorPagina>(&leccion, u"wbIntro"_s);
        QCOMPARE(pagina->toPlainText(), idioma == IdiomaPropio ? u"español"_s : u"traducida"_s);
        QTest::keyRelease(&leccion, Qt::Key_F1);
        QCOMPARE(Entorno::grabadora().abiertas, QStringList{m_carpeta.path() + abierta});
        QCOMPARE(leccion.URL(), m_carpeta.path() + u"\\Doc\\Primos.html"_s);
    }

private:
    QTemporaryDir m_carpeta;
};

NUMORA_TEST_MAIN(TestPaginaTraducida)
#include "tst_PaginaTraducida.moc"
