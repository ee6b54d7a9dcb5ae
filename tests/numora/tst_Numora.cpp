// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The program as the desktop starts it.
class TestNumora : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_entorno = QProcessEnvironment::systemEnvironment(); }

    void contestaSinPantalla_data()
    {
        QTest::addColumn<QString>("opcion");
        QTest::addColumn<QString>("contiene");
        QTest::newRow("version") << u"--version"_s << u"Numora "_s;
        QTest::newRow("help") << u"--help"_s << u"Opciones:"_s;
    }
    void contestaSinPantalla()
    {
        QFETCH(QString, opcion);
        QFETCH(QString, contiene);
        m_entorno.remove(u"QT_QPA_PLATFORM"_s);
        m_entorno.remove(u"DISPLAY"_s);
        m_entorno.remove(u"WAYLAND_DISPLAY"_s);
        m_entorno.insert(u"LC_ALL"_s, u"es_ES.UTF-8"_s);
        QProcess programa;
        arranca(programa, {opcion});
        QVERIFY(programa.waitForFinished());
        QCOMPARE(programa.exitCode(), 0);
        QVERIFY(QString::fromUtf8(programa.readAllStandardOutput()).contains(contiene));
    }

    void arrancaConAjustesDanados()
    {
        const QTemporaryDir ajustes;
        QVERIFY(QDir(ajustes.path()).mkdir(u"Numora"_s));
        QFile archivo(ajustes.filePath(u"Numora/Numora.ini"_s));
        QVERIFY(archivo.open(QIODevice::WriteOnly));
        archivo.write(
            QByteArray("[Programa]\nPrecisi%F3n=mucha\nVentana=@Variant(\0\xff\n[[[\n", 52));
        archivo.close();
        m_entorno.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        m_entorno.insert(u"XDG_CONFIG_HOME"_s, ajustes.path());
        QProcess programa;
        arranca(programa, {});
        QVERIFY(!programa.waitForFinished(3000));
        programa.terminate();
        QVERIFY(programa.waitForFinished());
        // Told to go, it closes its windows and ends as by the user's hand.
        QCOMPARE(programa.exitStatus(), QProcess::NormalExit);
        QCOMPARE(programa.exitCode(), 0);
    }

    /// Not even where they name a folder that is gone.
    void laGaleriaNoTocaLosAjustes()
    {
        const QTemporaryDir ajustes, imagenes, temporales;
        QVERIFY(QDir(ajustes.path()).mkdir(u"Numora"_s));
        QFile archivo(ajustes.filePath(u"Numora/Numora.ini"_s));
        const QByteArray contenido("[Programa]\nCarpeta=/no/hay\n");
        QVERIFY(archivo.open(QIODevice::ReadWrite));
        archivo.write(contenido);
        archivo.flush();
        m_entorno.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        m_entorno.insert(u"XDG_CONFIG_HOME"_s, ajustes.path());
        m_entorno.insert(u"TMPDIR"_s, temporales.path());
        QProcess programa;
        arranca(programa, {u"--galeria"_s, imagenes.path()});
        QTRY_VERIFY_WITH_TIMEOUT(!QDir(imagenes.path()).isEmpty(), 60'000);
        programa.terminate();
        QVERIFY(programa.waitForFinished());
        archivo.seek(0);
        QCOMPARE(archivo.readAll(), contenido);
        QCOMPARE(QDir(ajustes.filePath(u"Numora"_s)).entryList(QDir::Files).size(), 1);
    }

private:
    void arranca(QProcess &programa, const QStringList &opciones)
    {
        programa.setProcessEnvironment(m_entorno);
        programa.start(QStringLiteral(NUMORA), opciones);
        QVERIFY(programa.waitForStarted());
    }

    QProcessEnvironment m_entorno;
};

QTEST_GUILESS_MAIN(TestNumora)
#include "tst_Numora.moc"
