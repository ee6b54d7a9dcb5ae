// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "lessons/units/GrupoUnidades.h"

#include <QTest>
#include <algorithm>
#include <numeric>

/// The units of Z_n against multiplication by hand, and their powers.
class TestGrupoUnidades : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void inversosYOrdenesPorDefinicion()
    {
        for (std::int32_t n = 1; n <= 150; ++n) {
            const GrupoUnidades grupo(n);
            const std::int32_t uno = 1 % n;
            std::int32_t vistas = 0;
            for (std::int32_t a = 0; a < n; ++a) {
                const Unidad *unidad = grupo.unidad(a);
                QCOMPARE(unidad != nullptr, std::gcd(a, n) == 1);
                if (!unidad)
                    continue;
                ++vistas;
                QCOMPARE(unidad->inverso * a % n, uno);
                QVERIFY(unidad->inverso >= 0 && unidad->inverso < n);
                std::int32_t potencia = a, k = 1;
                for (; potencia != uno; ++k)
                    potencia = potencia * a % n;
                QCOMPARE(unidad->orden, k);
            }
            QCOMPARE(grupo.fi(), vistas);
        }
    }

    void estructura_data()
    {
        QTest::addColumn<int>("n");
        QTest::addColumn<int>("fi");
        QTest::addColumn<int>("exponente");
        QTest::addColumn<int>("raices");
        QTest::newRow("one element") << 1 << 1 << 1 << 1;
        QTest::newRow("two elements") << 2 << 1 << 1 << 1;
        QTest::newRow("Klein's group") << 8 << 4 << 2 << 0;
        QTest::newRow("twice a power of an odd prime") << 1458 << 486 << 486 << 162;
        QTest::newRow("Carmichael's number") << 561 << 320 << 80 << 0;
        QTest::newRow("largest prime") << 9973 << 9972 << 9972 << 3312;
        QTest::newRow("largest") << 10000 << 4000 << 500 << 0;
    }
    void estructura()
    {
        QFETCH(int, n);
        const GrupoUnidades grupo(n);
        QTEST(grupo.fi(), "fi");
        QTEST(grupo.exponente(), "exponente");
        QTEST(grupo.numeroDeRaicesPrimitivas(), "raices");
        QCOMPARE(grupo.esCiclico(), grupo.numeroDeRaicesPrimitivas() > 0);
    }

    void moduloFueraDeSitio()
    {
        for (const std::int32_t n : {0, -7, GrupoUnidades::MayorModulo + 1})
            QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, GrupoUnidades{n});
    }

    void potencias_data()
    {
        QTest::addColumn<int>("n");
        QTest::addColumn<int>("a");
        QTest::addColumn<QList<std::int32_t>>("valores");
        QTest::addColumn<int>("vuelta");
        using Lista = QList<std::int32_t>;
        QTest::newRow("unit") << 7 << 2 << Lista{1, 2, 4} << 0;
        QTest::newRow("negative") << 7 << -4 << Lista{1, 3, 2, 6, 4, 5} << 0;
        QTest::newRow("beyond n") << 7 << 1'000'000'000 << Lista{1, 6} << 0;
        QTest::newRow("no unit") << 12 << 2 << Lista{1, 2, 4, 8} << 2;
        QTest::newRow("idempotent") << 12 << 4 << Lista{1, 4} << 1;
        QTest::newRow("nilpotent") << 12 << 6 << Lista{1, 6, 0} << 2;
        QTest::newRow("zero") << 5 << 0 << Lista{1, 0} << 1;
        QTest::newRow("one element") << 1 << 5 << Lista{0} << 0;
    }
    void potencias()
    {
        QFETCH(int, n);
        QFETCH(int, a);
        const Potencias potencias = GrupoUnidades(n).potencias(a);
        QTEST(potencias.valores, "valores");
        QTEST(potencias.vuelta, "vuelta");
    }
};

QTEST_GUILESS_MAIN(TestGrupoUnidades)
#include "tst_GrupoUnidades.moc"
