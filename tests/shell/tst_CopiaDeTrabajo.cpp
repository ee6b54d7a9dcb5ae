// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/CopiaDeTrabajo.h"
#include "shell/core/system/Archivos.h"
#include "tests/shell/support/Permisos.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

/// Work that is kept against every end of the program.
class TestCopiaDeTrabajo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_carpeta = std::make_unique<QTemporaryDir>();
        m_trabajo = "uno";
        nueva();
    }

    void siguePorDetrasAlTrabajo()
    {
        m_copia->cambia();
        QCOMPARE(m_copia->guardada(), ""_ba);
        auto *espera = m_copia->findChild<QTimer *>();
        QVERIFY(espera->isActive() && espera->intervalAsDuration() < 10s);
        espera->start(200ms);
        // Typing without a pause puts nothing off.
        QTRY_COMPARE_WITH_TIMEOUT((m_copia->cambia(), m_copia->guardada()), "uno"_ba, 2000);
        QVERIFY(esSoloDeSuDuena(m_copia->ruta()));
        nueva();
        QCOMPARE(m_copia->guardada(), "uno"_ba);
        m_trabajo.clear();
        m_copia->guarda();
        QVERIFY(!QFile::exists(m_copia->ruta()));
    }

    void alAcabarElPrograma()
    {
        nueva(); // nothing was changed
        QCOMPARE(m_copia->guardada(), ""_ba);
        m_copia->cambia();
        nueva();
        QCOMPARE(m_copia->guardada(), "uno"_ba);
        escribeArchivo(m_copia->ruta(), "entera");
        escribeArchivo(m_copia->ruta() + u".aBcDeF"_s, "a medi"); // by a program that was killed
        nueva();
        QCOMPARE(m_copia->guardada(), "entera"_ba);
        QCOMPARE(QDir(m_carpeta->path()).entryList(QDir::Files).size(), 1);
    }

    /// The copy that is there stays; a failure is told once.
    void sinSitioParaLaCopia()
    {
        QDir().mkpath(m_copia->ruta()); // a folder in its place
        int fallos = 0;
        connect(m_copia.get(), &CopiaDeTrabajo::fallida, this, [&] { ++fallos; });
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, m_copia->guarda());
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, m_copia->guardada());
        auto *espera = m_copia->findChild<QTimer *>();
        for (int i = 0; i < 2; ++i) {
            m_copia->cambia();
            espera->start(0ms);
            QTRY_VERIFY(!espera->isActive());
        }
        QCOMPARE(fallos, 1);
    }

private:
    void nueva()
    {
        m_copia.reset();
        m_copia = std::make_unique<CopiaDeTrabajo>(
            m_carpeta->path(), u"trabajo.copia"_s, [this] { return m_trabajo; }, nullptr);
    }

    std::unique_ptr<QTemporaryDir> m_carpeta;
    std::unique_ptr<CopiaDeTrabajo> m_copia;
    QByteArray m_trabajo;
};

QTEST_GUILESS_MAIN(TestCopiaDeTrabajo)
#include "tst_CopiaDeTrabajo.moc"
