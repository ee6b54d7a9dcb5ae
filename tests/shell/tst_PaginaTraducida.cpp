// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/ModGlobal.h"
#include "shell/core/Traduccion.h"
#include "shell/core/system/Archivos.h"
#include "shell/frame/FormLeccion.h"
#include "shell/page/NavegadorPagina.h"
#include "tests/shell/support/Entorno.h"

namespace {

class FormConPagina : public FormLeccion
{
public:
    FormConPagina() : FormLeccion(u"Primos.html"_s) { agregaIntroduccion(u"Introducción"_s); }
};

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
        escribeArchivo(carpeta.filePath(u"Doc/Primos.html"_s), "<p>español</p>");
        for (const QString &otra :
             {u"Doc/English"_s, u"Doc/Català"_s, u"Doc/Español"_s, u"Fuera"_s})
            escribeArchivo(carpeta.filePath(otra + u"/Primos.html"_s), "<p>traducida</p>");
    }
    void init()
    {
        Entorno::limpia();
        Sesión().ponCarpeta(m_carpeta.path());
    }

    void pagina()
    {
        const QString carpeta = m_carpeta.path();
        const QString propia = carpeta + u"\\Doc\\Primos.html"_s;
        const QString sinTraducir = carpeta + u"\\Doc\\Euclides.html"_s;
        // Languages with a page, then others: a folder in its place, and ways out of the folder.
        const QStringList traducidas{u"English"_s, u"Català"_s, u"ENGLISH"_s};
        for (const QString &idioma : traducidas + QStringList{u"Español"_s,
                                                              u"Klingon"_s,
                                                              u"Français"_s,
                                                              {},
                                                              u"."_s,
                                                              u".."_s,
                                                              u"../Fuera"_s,
                                                              u"..\\Fuera"_s,
                                                              m_carpeta.filePath(u"Fuera"_s),
                                                              u"English/../English"_s,
                                                              u"English"_s + QChar(u'\0'),
                                                              QString(100'000, u'x')}) {
            QCOMPARE(PaginaTraducida(propia, idioma),
                     traducidas.contains(idioma) ? carpeta + u"\\Doc\\%1\\Primos.html"_s.arg(idioma)
                                                 : propia);
            QCOMPARE(PaginaTraducida(sinTraducir, idioma), sinTraducir);
        }
    }

    void laMuestraLaLeccion()
    {
        const QString propia = m_carpeta.path() + u"\\Doc\\Primos.html"_s;
        const QString inglesa = m_carpeta.path() + u"\\Doc\\English\\Primos.html"_s;
        for (const auto &[idioma, texto, abierta] : {std::tuple{u"Español"_s, u"español"_s, propia},
                                                     {u"English"_s, u"traducida"_s, inglesa}}) {
            Idioma() = idioma;
            FormConPagina leccion;
            leccion.show();
            QCOMPARE(control<NavegadorPagina>(&leccion, u"wbIntro"_s)->toPlainText(), texto);
            QTest::keyRelease(&leccion, Qt::Key_F1);
            QCOMPARE(std::exchange(Entorno::grabadora().abiertas, {}), QStringList{abierta});
            QCOMPARE(leccion.URL(), propia);
        }
    }

private:
    QTemporaryDir m_carpeta;
};

NUMORA_TEST_MAIN(TestPaginaTraducida)
#include "tst_PaginaTraducida.moc"
