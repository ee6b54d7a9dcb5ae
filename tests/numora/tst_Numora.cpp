// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDir>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The program as the desktop starts it.
class TestNumora : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_entorno = QProcessEnvironment::systemEnvironment();
        m_carpeta = std::make_unique<QTemporaryDir>();
        m_ajustes = m_carpeta->filePath(u"Numora/Numora.ini"_s);
#if defined(Q_OS_WIN) // where no variable moves them
        m_ajustes = QSettings(QSettings::IniFormat, QSettings::UserScope, u"Numora"_s, u"Numora"_s)
                        .fileName();
        QFile::rename(m_ajustes, m_ajustes + u".suyos"_s);
#endif
    }

    void cleanup()
    {
        QFile::remove(m_ajustes);
        QFile::rename(m_ajustes + u".suyos"_s, m_ajustes);
    }

    /// What needs no window needs no display; what does says so, and a line that cannot be followed
    /// too.
    void contestaSinPantalla()
    {
        quitaLaPantalla();
        m_entorno.insert(u"LC_ALL"_s, u"es_ES.UTF-8"_s);
        struct Linea
        {
            QStringList opciones;
            int salida;
            QString dice;
        };
        QList<Linea> lineas{{{u"--version"_s}, 0, u"Numora "_s},
                            {{u"--help"_s}, 0, u"Muestra esta ayuda."_s},
                            {{u"--help"_s, u"-i:English"_s}, 0, u"Shows this help."_s},
                            {{u"--hoja"_s}, 2, u"Falta el valor de --hoja."_s},
                            {{u"--galeria"_s, u"x"_s, u"--tamano=639x480"_s}, 2, u"640x480"_s},
                            {{u"--galeria"_s, u"x"_s, u"--tamano"_s, u"ancho"_s}, 2, u"640x480"_s},
                            {{u"--galeria"_s, u"x"_s, u"--escala"_s, u"99"_s}, 2, u"100"_s}};
#if !defined(Q_OS_WIN) // which always has a display
        lineas += {{{}, 1, u"No hay ninguna pantalla"_s},
                   { {u"-i:English"_s},
                     1,
                     u"There is no display"_s }};
#endif
        for (const auto &[opciones, salida, dice] : std::as_const(lineas)) {
            arranca(opciones);
            QVERIFY(m_programa.waitForFinished());
            QCOMPARE(m_programa.exitStatus(), QProcess::NormalExit);
            QCOMPARE(m_programa.exitCode(), salida);
            const QByteArray dicho = salida == 0 ? m_programa.readAllStandardOutput()
                                                 : m_programa.readAllStandardError();
            QVERIFY2(QString::fromUtf8(dicho).contains(dice), dicho.constData());
        }
    }

    /// A sheet by its code, with neither display nor window; a wrong code is told.
    void escribeUnaHoja()
    {
        quitaLaPantalla();
        const QTemporaryDir carpeta;
        m_entorno.insert(u"XDG_RUNTIME_DIR"_s, carpeta.path()); // Qt complains where there is none
        const QString pdf = carpeta.filePath(u"hoja.pdf"_s);
        for (const auto &[codigo, salida] : {std::pair{u"4D4-02D9"_s, 0}, {u"MD7-4K2Q"_s, 1}}) {
            arranca({u"--hoja"_s, codigo, u"--pdf"_s, pdf, u"--soluciones"_s});
            QVERIFY(m_programa.waitForFinished());
            QCOMPARE(m_programa.exitCode(), salida);
            QCOMPARE(m_programa.readAllStandardError().isEmpty(), salida == 0);
        }
        QFile archivo(pdf);
        QVERIFY(archivo.open(QIODevice::ReadOnly));
        QVERIFY(archivo.readAll().startsWith("%PDF"));
    }

    void arrancaConAjustesDanados()
    {
        ponAjustes({"[Programa]\nPrecisi%F3n=mucha\nVentana=@Variant(\0\xff\n[[[\n", 52});
#if defined(Q_OS_WIN) // where a program is asked to go through its windows
        m_entorno.insert(u"QT_QPA_PLATFORM"_s, u"windows"_s);
#endif
        arranca({});
        QVERIFY(!m_programa.waitForFinished(3000));
        m_programa.terminate();
        QVERIFY(m_programa.waitForFinished());
        // Told to go, it closes its windows and ends as by the user's hand.
        QCOMPARE(m_programa.exitStatus(), QProcess::NormalExit);
        QCOMPARE(m_programa.exitCode(), 0);
    }

    /// Not even where they name a folder that is gone.
    void laGaleriaNoTocaLosAjustes()
    {
        const QTemporaryDir imagenes, temporales;
        const QByteArray contenido("[Programa]\nCarpeta=/no/hay\n");
        ponAjustes(contenido);
        const auto ficheros = [&] { return QFileInfo(m_ajustes).dir().entryList(QDir::Files); };
        const QStringList antes = ficheros();
        for (const QString &variable : {u"TMPDIR"_s, u"TMP"_s})
            m_entorno.insert(variable, temporales.path());
        arranca({u"--galeria"_s, imagenes.path()});
        QTRY_VERIFY_WITH_TIMEOUT(!QDir(imagenes.path()).isEmpty(), 60'000);
#if defined(Q_OS_WIN) // where only a window in sight can be asked to go
        m_programa.kill();
#else
        m_programa.terminate();
#endif
        QVERIFY(m_programa.waitForFinished());
        QFile archivo(m_ajustes);
        QVERIFY(archivo.open(QIODevice::ReadOnly));
        QCOMPARE(archivo.readAll(), contenido);
        QCOMPARE(ficheros(), antes);
    }

private:
    void quitaLaPantalla()
    {
        for (const QString &variable :
             {u"QT_QPA_PLATFORM"_s, u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"WAYLAND_SOCKET"_s})
            m_entorno.remove(variable);
    }

    void ponAjustes(const QByteArray &contenido)
    {
        QVERIFY(QDir().mkpath(QFileInfo(m_ajustes).path()));
        QFile archivo(m_ajustes);
        QVERIFY(archivo.open(QIODevice::WriteOnly));
        archivo.write(contenido);
        m_entorno.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        m_entorno.insert(u"XDG_CONFIG_HOME"_s, m_carpeta->path());
    }

    void arranca(const QStringList &opciones)
    {
        m_programa.setProcessEnvironment(m_entorno);
        m_programa.start(QStringLiteral(NUMORA), opciones);
        QVERIFY(m_programa.waitForStarted());
    }

    std::unique_ptr<QTemporaryDir> m_carpeta;
    QString m_ajustes;
    QProcess m_programa;
    QProcessEnvironment m_entorno;
};

QTEST_GUILESS_MAIN(TestNumora)
#include "tst_Numora.moc"
