// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/Perfil.h"
#include "shell/core/Rutas.h"
#include "shell/core/TextoDeRejilla.h"
#include "shell/core/system/Archivos.h"
#include "tests/shell/support/Permisos.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

#if defined(Q_OS_WIN)
const QString SinFin = u"C:\\"_s; // a folder: the file without end is there none at all
constexpr auto DeNombres = Qt::CaseInsensitive;
#else
const QString SinFin = u"/dev/zero"_s;
constexpr auto DeNombres = Qt::CaseSensitive;
#endif

} // namespace

class TestArchivos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leePerfil()
    {
        const auto valor = [](const QByteArray &bytes) {
            Perfil perfil;
            perfil.leeBytes(bytes);
            return perfil.valor(u"RSA"_s, u"q(0)"_s, u"falta"_s);
        };
        for (const QByteArray &bytes :
             {"[RSA]\r\nq(0)=12\r\n"_ba, "[rsa]\nQ(0) = 12 \n"_ba, "[RSA]\nq(0)=12"_ba,
              "\xEF\xBB\xBF[RSA]\r\nq(0)=12\r\n"_ba, "[RSA]\nq(0)=12\nq(0)=13\n"_ba})
            QVERIFY2(valor(bytes) == u"12", bytes);
        QCOMPARE(valor("[RSA]\nq(0)=\" 12 \"\n"), u" 12 "_s);
        QCOMPARE(valor("[RSA]\nq(0)=a\xF1o\n"), u"año"_s);
        QCOMPARE(valor("[RSA]\nq(0)=a\xC3\xB1o\n"), u"año"_s);
        for (const QByteArray &bytes : {"[R]\nq(0)=12\n"_ba, "q(0)=12\n"_ba, QByteArray(100, '\0')})
            QVERIFY2(valor(bytes) == u"falta", bytes);
    }

    void limitesDelPerfil()
    {
        Perfil perfil;
        QCOMPARE(perfil.leeBytes("[a]\nb=" + QByteArray(9000, '7') + "\n"),
                 Perfil::Lectura::Correcta);
        QCOMPARE(perfil.valor(u"a"_s, u"b"_s).size(), 8191);
        QCOMPARE(perfil.leeBytes(QByteArray(Perfil::TamanoMaximo + 1, 'x')),
                 Perfil::Lectura::Ilegible);
        QCOMPARE(perfil.valor(u"a"_s, u"b"_s), QString());
        QCOMPARE(perfil.lee(m_carpeta.filePath(u"no existe"_s)), Perfil::Lectura::NoExiste);
        QCOMPARE(perfil.lee(m_carpeta.path()), Perfil::Lectura::Ilegible);
    }

    void escribePerfil()
    {
        const QString ruta = m_carpeta.filePath(u"yo.RSA"_s);
        Perfil::escribe(ruta, u"RSA"_s, {{u"r"_s, u"1"_s}, {u"q(0)"_s, u"33"_s}},
                        Perfil::Acceso::Privado);
        QCOMPARE(leeArchivo(ruta, 100), "[RSA]\r\nr=1\r\nq(0)=33\r\n"_ba);
        QVERIFY(esSoloDeSuDuena(ruta));
        for (const QString &valor : {u"1\n[Otra]"_s, u"1\r[Otra]"_s})
            QVERIFY_THROWS_EXCEPTION(ErrorEjecucion,
                                     Perfil::escribe(ruta, u"RSA"_s, {{u"r"_s, valor}}));
        QCOMPARE(leeArchivo(ruta, 100), "[RSA]\r\nr=1\r\nq(0)=33\r\n"_ba);
    }

    void erroresDeArchivo()
    {
        const QString archivo = m_carpeta.filePath(u"archivo"_s);
        escribeArchivo(archivo, "1");
        QCOMPARE(numeroDe([&] { escribeArchivo(archivo + u"/dentro"_s, "2"); }),
                 int(ErrorEjecucion::RutaNoEncontrada));
        QCOMPARE(numeroDe([&] { leeArchivo(m_carpeta.filePath(u"nada"_s), 10); }),
                 int(ErrorEjecucion::ArchivoNoEncontrado));
        for (const QString &otraCosa : {SinFin, m_carpeta.path()})
            QCOMPARE(numeroDe([&] { leeArchivo(otraCosa, 10); }),
                     int(ErrorEjecucion::ErrorDeArchivo));
        escribeArchivo(archivo, "123456789");
        QCOMPARE(numeroDe([&] { leeArchivo(archivo, 8); }), int(ErrorEjecucion::ErrorDeArchivo));
        QCOMPARE(leeArchivo(archivo, 9), "123456789"_ba);
    }

    /// The rest of a killed program goes after a day; one that is being written stays.
    void restos()
    {
        const QDir carpeta(m_carpeta.path());
        const auto escribe = [&](const QString &nombre, int horas) {
            QFile archivo(carpeta.filePath(nombre));
            QVERIFY(archivo.open(QIODevice::WriteOnly));
            const QDateTime fecha = QDateTime::currentDateTime().addSecs(-3600 * horas);
            QVERIFY(archivo.setFileTime(fecha, QFileDevice::FileModificationTime));
        };
        escribe(u".numora-1a.tmp"_s, 25);
        escribe(u".numora-1b.tmp"_s, 23);
        escribe(u".numora-1c.msg"_s, 25);
        QVERIFY(QFile::link(carpeta.filePath(u".numora-1c.msg"_s),
                            carpeta.filePath(u".numora-1d.tmp"_s)));
        barreRestos(carpeta.path(), u".numora-*.tmp"_s);
        barreRestos(u"/no/hay"_s, u"*"_s);
        QCOMPARE(carpeta.entryList({u".numora*"_s}, QDir::AllEntries | QDir::Hidden),
                 (QStringList{u".numora-1b.tmp"_s, u".numora-1c.msg"_s, u".numora-1d.tmp"_s}));
    }

    void rutas()
    {
        QDir(m_carpeta.path()).mkpath(u"Doc/Más"_s);
        escribeArchivo(m_carpeta.filePath(u"Doc/Más/Clave.RSA"_s), "x");
        const QString esperada = m_carpeta.path() + u"/Doc/Más/Clave.RSA"_s;
        QCOMPARE(rutaExistente(esperada), esperada);
        for (const auto &[dada, hallada] :
             {std::pair{u"\\DOC\\más\\clave.rsa"_s, u"/Doc/Más/Clave.RSA"_s},
              {u"\\doc\\Nuevo.txt"_s, u"/Doc/Nuevo.txt"_s}})
            QVERIFY(rutaExistente(m_carpeta.path() + dada)
                        .compare(m_carpeta.path() + hallada, DeNombres) == 0);
        for (const QString &malo :
             {QString(), u"."_s, u".."_s, u"a/b"_s, u"a\\b"_s, u"C:x"_s, QString(QChar(u'\0'))})
            QVERIFY2(!esNombreSimple(malo), qPrintable(malo));
        QVERIFY(esNombreSimple(u"maría.lópez"_s));
    }

    void textoDeRejilla()
    {
        const QList<QStringList> filas{{u"n"_s, u"50%"_s}, {u"1;2"_s, u"di \"sí\""_s}};
        QCOMPARE(::textoDeRejilla(filas, FormaDeCopia::Texto), u"n\t50%\n1;2\tdi \"sí\"\n"_s);
        QCOMPARE(::textoDeRejilla(filas, FormaDeCopia::CSV),
                 u"n;50%\r\n\"1;2\";\"di \"\"sí\"\"\"\r\n"_s);
        QCOMPARE(::textoDeRejilla(filas, FormaDeCopia::CSV, false),
                 u"n,50%\r\n1;2,\"di \"\"sí\"\"\"\r\n"_s);
        QCOMPARE(::textoDeRejilla(filas, FormaDeCopia::TeX),
                 u"\\begin{tabular}{rr}\nn & 50\\% \\\\\n1;2 & di \"sí\" \\\\\n\\end{tabular}\n"_s);
    }

private:
    template <typename Accion>
    static int numeroDe(Accion accion)
    {
        try {
            accion();
        } catch (const ErrorEjecucion &error) {
            return error.numero();
        }
        return 0;
    }

    QTemporaryDir m_carpeta;
};

QTEST_GUILESS_MAIN(TestArchivos)
#include "tst_Archivos.moc"
