// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/run/Espera.h"
#include "tests/Procesador.h"
#include "tests/Sorteos.h"
#include "tests/TareasQueSeVan.h"

#include <QScopeGuard>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <optional>
#include <stdexcept>

using namespace std::chrono_literals;

namespace {

Tarea<int> doble(int n)
{
    co_return 2 * n;
}

Tarea<int> falla()
{
    throw std::runtime_error("no");
    co_return 0;
}

Tarea<qint64> suma(qint64 n, Billete billete)
{
    qint64 total = 0;
    for (qint64 i = 0; i < n && !billete.detenida(); ++i) {
        total += co_await doble(1);
        co_await billete.ceder();
    }
    co_return total;
}

Tarea<> corre(Billete billete, int &vivos, qint64 &pasos)
{
    ++vivos;
    const auto alFinal = qScopeGuard([&] { --vivos; });
    while (!billete.detenida()) {
        ++pasos;
        co_await billete.ceder();
    }
}

Tarea<> cuenta(qint64 n, Billete billete, qint64 &total)
{
    total = co_await suma(n, billete);
}

Tarea<> esperaDos(Espera &primera, Espera &segunda, int &hechas)
{
    co_await primera;
    ++hechas;
    co_await segunda;
    ++hechas;
}

} // namespace

class TestTareas : public QObject
{
    Q_OBJECT

    QList<std::exception_ptr> m_errores;
    std::optional<TareasQueSeVan> m_tareas;
    int m_vivos = 0;
    qint64 m_pasos = 0;

private Q_SLOTS:
    void init()
    {
        m_errores.clear();
        m_tareas.emplace([this](const std::exception_ptr &error) { m_errores << error; });
    }

    void daValorOError()
    {
        QCOMPARE(doble(21).completa(), 42);
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, falla().completa());
        // A task that ends at once must not leave a frame of the machine's stack behind.
        QCOMPARE(suma(300'000, Billete()).completa(), 600'000);
    }

    void unaCorridaCedeYAcaba()
    {
        int ticks = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, [&] { ++ticks; });
        timer.start(1);
        qint64 total = 0;
        const qint64 n = 2'000 * Sorteos;
        m_tareas->lanza(cuenta(n, m_tareas->billete(), total));
        QVERIFY(!m_tareas->vacias());
        QTRY_VERIFY_WITH_TIMEOUT(m_tareas->vacias(), 60'000);
        QCOMPARE(total, 2 * n);
        QVERIFY2(ticks > 3, qPrintable(QString::number(ticks)));
    }

    void losSucesosNoEsperanMasQueUnPlazo()
    {
        m_tareas->lanza(corre(m_tareas->billete(), m_vivos, m_pasos));
        // What the run has computed meanwhile, in milliseconds: a busy machine takes nothing from
        // it.
        QList<qint64> demoras;
        for (int i = 0; i < 20; ++i) {
            const double antes = segundosDeProcesador();
            bool servido = false;
            QMetaObject::invokeMethod(
                this, [&] { servido = true; }, Qt::QueuedConnection);
            while (!servido)
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            demoras << std::lround((segundosDeProcesador() - antes) * 1000);
            QTest::qWait(1);
        }
        m_tareas.reset();
        std::sort(demoras.begin(), demoras.end());
        QVERIFY2(demoras[10] <= 2 * Billete::Plazo.count(),
                 qPrintable(QString::number(demoras[10])));
    }

    void detenerAlcanzaALasEmpezadas()
    {
        const Billete primero = m_tareas->billete();
        m_tareas->lanza(corre(primero, m_vivos, m_pasos));
        m_tareas->detener();
        const Billete segundo = m_tareas->billete();
        QVERIFY(primero.detenida() && primero.superada());
        QVERIFY(!segundo.detenida() && !segundo.superada());
        m_tareas->lanza(corre(segundo, m_vivos, m_pasos));
        QTRY_COMPARE(m_vivos, 1);
        segundo.detener();
        QTRY_VERIFY(m_tareas->vacias());
        QCOMPARE(m_vivos, 0);
    }

    void muereConSuDueno()
    {
        const Billete billete = m_tareas->billete(); // outlives the run, and its queue with it
        m_tareas->lanza(corre(billete, m_vivos, m_pasos));
        QCOMPARE(m_vivos, 1);
        m_tareas.reset();
        QCOMPARE(m_vivos, 0);
        const qint64 hasta = m_pasos;
        QTest::qWait(30);
        QCOMPARE(m_pasos, hasta);
    }

    void unErrorSeDiceUnaVez()
    {
        m_tareas->lanza([]() -> Tarea<> { co_await falla(); }());
        QTest::qWait(5);
        QCOMPARE(m_errores.size(), 1);
        QVERIFY(m_tareas->vacias());
    }

    void unaEsperaSigueAlCumplirse()
    {
        Espera primera, segunda;
        int hechas = 0;
        m_tareas->lanza(esperaDos(primera, segunda, hechas));
        segunda.cumple(); // before anybody waits for it
        QTest::qWait(5);
        QCOMPARE(hechas, 0);
        primera.cumple();
        primera.cumple();
        QCOMPARE(hechas, 0); // goes on from the event loop
        QTRY_COMPARE(hechas, 2);

        Espera tardia, ninguna;
        m_tareas->lanza(esperaDos(tardia, ninguna, hechas));
        tardia.cumple();
        m_tareas.reset();
        QTest::qWait(5);
        QCOMPARE(hechas, 2);
    }
};

QTEST_GUILESS_MAIN(TestTareas)
#include "tst_Tareas.moc"
