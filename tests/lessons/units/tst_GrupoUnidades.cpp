// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "lessons/units/GrupoUnidades.h"
#include "tests/Tabla.h"

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
        filasDeTexto<int, int, int, int>(uR"(
            one element                   | 1     | 1    | 1    | 1
            two elements                  | 2     | 1    | 1    | 1
            Klein's group                 | 8     | 4    | 2    | 0
            twice a power of an odd prime | 1458  | 486  | 486  | 162
            Carmichael's number           | 561   | 320  | 80   | 0
            largest prime                 | 9973  | 9972 | 9972 | 3312
            largest                       | 10000 | 4000 | 500  | 0)"_s);
    }
    void estructura()
    {
        const auto [n, fi, exponente, raices] = estaFila<int, int, int, int>();
        const GrupoUnidades grupo(n);
        QCOMPARE(grupo.fi(), fi);
        QCOMPARE(grupo.exponente(), exponente);
        QCOMPARE(grupo.numeroDeRaicesPrimitivas(), raices);
        QCOMPARE(grupo.esCiclico(), grupo.numeroDeRaicesPrimitivas() > 0);
    }

    void moduloFueraDeSitio()
    {
        for (const std::int32_t n : {0, -7, GrupoUnidades::MayorModulo + 1})
            QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, GrupoUnidades{n});
    }

    void potencias_data()
    {
        filasDeTexto<int, int, QString, int>(uR"(
            unit | 7 | 2 | 1 2 4 | 0 || negative | 7 | -4 | 1 3 2 6 4 5 | 0
            beyond n | 7 | 1000000000 | 1 6 | 0 || no unit | 12 | 2 | 1 2 4 8 | 2
            idempotent | 12 | 4 | 1 4 | 1 || nilpotent | 12 | 6 | 1 6 0 | 2
            zero | 5 | 0 | 1 0 | 1 || one element | 1 | 5 | 0 | 0)"_s);
    }
    void potencias()
    {
        const auto [n, a, valores, vuelta] = estaFila<int, int, QString, int>();
        const PotenciasDeElemento potencias = GrupoUnidades(n).potencias(a);
        QStringList halladas;
        for (const std::int32_t potencia : potencias.valores)
            halladas << QString::number(potencia);
        QCOMPARE(halladas.join(u' '), valores);
        QCOMPARE(potencias.vuelta, vuelta);
    }
};

QTEST_GUILESS_MAIN(TestGrupoUnidades)
#include "tst_GrupoUnidades.moc"
