#include "lessons/primes/CribaSegmentada.h"
#include "lessons/primes/PrimosDelServicio.h"
#include "shell/Corrida.h"

#include <QTest>
#include <algorithm>

/// The sieve of the lesson against the library's list, its yields and its stop.
class TestCribaSegmentada : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contraElServicio_data()
    {
        QTest::addColumn<int>("limite");
        // Around the first candidates, the ends of blocks (6001, 12001, …) and squares of primes.
        for (const int limite : {3,     4,     5,     6,     7,     8,      10,     11,       24,
                                 25,    48,    49,    5999,  6000,  6001,   6006,   6007,     11999,
                                 12001, 12007, 36000, 36001, 65000, 120409, 994009, 1'000'000})
            QTest::addRow("%d", limite) << limite;
    }
    void contraElServicio()
    {
        QFETCH(int, limite);
        Corrida corrida;
        CribaSegmentada criba;
        criba.criba(limite, corrida, {});
        const PrimosDelServicio esperados = listaPrimos(limite);
        QCOMPARE(static_cast<std::int32_t>(criba.primos().size()), esperados.cuantos);
        QCOMPARE(criba.numeros(), esperados.numeros);
    }

    void dosYTresSiempre()
    {
        for (const int limite : {2, 1, 0, -5}) {
            Corrida corrida;
            CribaSegmentada criba;
            criba.criba(limite, corrida, {});
            QCOMPARE(criba.numeros(), (std::vector<std::uint32_t>{2, 3}));
        }
    }

    void otraVezDesdeElPrincipio()
    {
        Corrida corrida;
        CribaSegmentada criba;
        criba.criba(20'000, corrida, {});
        criba.criba(10, corrida, {});
        QCOMPARE(criba.numeros(), (std::vector<std::uint32_t>{2, 3, 5, 7}));
    }

    void elAvanceCreceHastaElFinal()
    {
        Corrida corrida;
        std::vector<int> avances;
        CribaSegmentada().criba(1'000'000, corrida,
                                [&](int porcentaje) { avances.push_back(porcentaje); });
        QVERIFY(std::ranges::is_sorted(avances));
        QVERIFY(avances.size() > 50);
        QCOMPARE(avances.back(), 99);
    }

    void detenidaEnCualquierPaso()
    {
        // A yield serves events at once, so every step is a chance to stop.
        const std::vector<std::uint32_t> primos = listaPrimos(30'000).numeros;
        for (int paso = 1; paso < 3200; paso += 97) {
            int pasos = 0;
            Corrida *esta = nullptr;
            Corrida corrida([&] { esta->detener(); });
            esta = &corrida;
            CribaSegmentada criba;
            criba.criba(30'000, corrida, [&](int) {
                if (++pasos > paso % 5)
                    corrida.cederYa();
            });
            const auto hallados = criba.primos();
            QVERIFY(std::equal(hallados.begin(), hallados.end(), primos.begin()));
            QVERIFY(hallados.size() <= criba.numeros().size());
            QVERIFY(criba.numeros().size() < primos.size() + 2000);
        }
    }
};

QTEST_GUILESS_MAIN(TestCribaSegmentada)
#include "tst_CribaSegmentada.moc"
