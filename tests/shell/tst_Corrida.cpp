#include "shell/core/Corrida.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

using namespace std::chrono_literals;

class TestCorrida : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cedeUnaVezPorPlazo()
    {
        int cesiones = 0;
        Corrida corrida([&] { ++cesiones; });
        QElapsedTimer reloj;
        reloj.start();
        qint64 pasos = 0;
        while (reloj.elapsed() < 300) {
            corrida.ceder();
            ++pasos;
        }
        QVERIFY(pasos > 1000);
        QVERIFY2(cesiones >= 5 && cesiones <= 30, qPrintable(QString::number(cesiones)));
    }

    void cedePasosLargosDespuesDeCortos()
    {
        int cesiones = 0;
        Corrida corrida([&] { ++cesiones; });
        for (int i = 0; i < 1'000'000; ++i)
            corrida.ceder();
        cesiones = 0;
        for (int i = 0; i < 200; ++i) {
            QTest::qSleep(1);
            corrida.ceder();
        }
        QVERIFY2(cesiones >= 3, qPrintable(QString::number(cesiones)));
    }

    void unTemporizadorDetieneUnBucle()
    {
        Corrida corrida;
        QTimer::singleShot(20, [&] { corrida.detener(); });
        while (!corrida.detenida())
            corrida.ceder();
        corrida.permitir();
        QVERIFY(!corrida.detenida());
    }

    void avisaAlTerminarElUltimoTramo()
    {
        Corrida corrida([] {});
        int avisos = 0;
        corrida.alTerminar([&] { ++avisos; });
        {
            const Corrida::Tramo fuera(corrida);
            {
                const Corrida::Tramo dentro(corrida);
                QVERIFY(corrida.enCurso());
            }
            QCOMPARE(avisos, 0);
            QVERIFY(corrida.enCurso());
        }
        QCOMPARE(avisos, 1);
        QVERIFY(!corrida.enCurso());
    }
};

QTEST_GUILESS_MAIN(TestCorrida)
#include "tst_Corrida.moc"
