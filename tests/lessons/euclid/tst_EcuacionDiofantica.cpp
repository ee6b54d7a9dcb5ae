// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "lessons/euclid/EcuacionDiofantica.h"
#include "tests/Tabla.h"
#include "tests/lessons/euclid/Muestras.h"

#include <QLocale>
#include <numeric>

namespace {

SolucionesDiofanticas resuelve(std::int64_t a, std::int64_t b, std::int64_t c)
{
    return EcuacionDiofantica().resuelve(Moneda::deEntero(a), Moneda::deEntero(b),
                                         Moneda::deEntero(c));
}

} // namespace

class TestEcuacionDiofantica : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }

    void textos_data()
    {
        filasDeTexto<qint64, qint64, qint64, QString, QString>(uR"(
            only one | 2 | 3 | 7 | Solución única | x = 2\ny = 1
            no multiple of the gcd | 5 | 10 | 3 | Sin soluciones positivas |
            only with negative numbers | 5 | 8 | 27 | Sin soluciones positivas |
            nothing to change | 6 | 10 | 0 | Solución única | x = 0\ny = 0
            a is 0 | 0 | 3 | 7 | Soluciones |
            b is 0 | 3 | 0 | 7 | Soluciones |
            c is negative | 3 | 5 | -8 | Soluciones |
            no constant, no factors | 1 | 1 | 2000 | 2.001 soluciones | x = k\ny = 2.000 - \
              k\n\nk entero en \n[0, 2.000]
            all terms | 6 | 10 | 100 | 4 soluciones | x = 100 + 5·k\ny = -50 - 3·k\n\nk \
              entero en \n[-20, -17]
            no constant in y | 2 | 1 | 6 | 4 soluciones | x = k\ny = 6 - 2·k\n\nk entero en \
              \n[0, 3]
            only the sign left of y | 1 | 3 | 9 | 4 soluciones | x = 9 + 3·k\ny =  - k\n\nk \
              entero en \n[-3, 0]
            large: every count is written in full | 1 | 1 | 922337203685477 | \
              922.337.203.685.478 soluciones | x = k\ny = 922.337.203.685.477 - k\n\nk entero \
              en \n[0, 922.337.203.685.477])"_s);
    }
    void textos()
    {
        const auto [a, b, c, cuenta, general] =
            estaFila<qint64, qint64, qint64, QString, QString>();
        const SolucionesDiofanticas soluciones = resuelve(a, b, c);
        QCOMPARE(soluciones.cuenta, cuenta);
        QCOMPARE(soluciones.general, general);
    }

    void ningunaFalta()
    {
        for (int a = 1; a <= 15; ++a) {
            for (int b = 1; b <= 15; ++b) {
                for (int c = 0; c <= 80; ++c)
                    comparaConTodas(a, b, c);
            }
        }
    }

    void lasPrimerasYLasUltimas_data()
    {
        filasDeTexto<int, int>(uR"(
            1000 solutions | 999 | 1000 || 1001 solutions | 1000 | 1001
            2001 solutions | 2000 | 1001)"_s);
    }
    void lasPrimerasYLasUltimas()
    {
        const auto [c, filas] = estaFila<int, int>();
        const auto lista = resuelve(1, 1, c).lista;
        QCOMPARE(int(lista.size()), filas);
        QCOMPARE(qint64(lista[499].numero), qint64(500));
        QCOMPARE(qint64(lista.constLast().numero), qint64(c + 1));
        if (c < 1000)
            return;
        QCOMPARE(qint64(lista[500].numero), qint64(0));
        QCOMPARE(qint64(lista[501].numero), qint64(c + 1 - 499));
        QCOMPARE(qint64(lista[501].x), qint64(c - 499));
    }

    /// Large numbers against exact bounds of k, where those fit.
    void numerosGrandes()
    {
        Muestras muestras(4);
        int resueltas = 0;
        for (int i = 0; i < 20'000; ++i) {
            const std::int64_t a = 1 + muestras.natural() / 2, b = 1 + muestras.natural() / 2;
            const std::int64_t g = std::gcd(a, b);
            const std::int64_t c = muestras.natural() / g * g;
            SolucionesDiofanticas soluciones;
            try {
                soluciones = resuelve(a, b, c);
            } catch (const ErrorEjecucion &error) {
                QCOMPARE(error.numero(), ErrorEjecucion::Desbordamiento);
                continue;
            }
            resueltas += soluciones.lista.isEmpty() ? 0 : 1;
            for (const auto &solucion : soluciones.lista) {
                if (solucion.numero == 0)
                    continue;
                QVERIFY(solucion.x >= 0 && solucion.y >= 0);
                QVERIFY(Exacto(a) * solucion.x + Exacto(b) * solucion.y == c);
            }
            if (!soluciones.lista.isEmpty()) {
                // One step before the first and after the last a number is negative.
                QVERIFY(soluciones.lista.constFirst().x < b / g);
                QVERIFY(soluciones.lista.constLast().y < a / g);
            }
        }
        QVERIFY(resueltas > 1000);
    }

    void primeraKMayorQue32Bits()
    {
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, resuelve(3, 5, 100'000'000'000'000));
    }

    /// Where s·(c/a) lies nearer to a whole number than a double can tell, the bound is taken for
    /// that number. Here s = 1000 and s·c/a = 99 999 999 - 1/a: there is no solution, and one with
    /// y = -1 is given. Below s·c = 2^52 this cannot happen.
    void dondeElDobleNoAlcanza()
    {
        const auto soluciones = resuelve(999'999'999, 1'000'000, 99'999'998'900'000);
        QCOMPARE(soluciones.cuenta, u"Solución única"_s);
        QCOMPARE(qint64(soluciones.lista.constFirst().y), qint64(-1));
    }

private:
    static void comparaConTodas(int a, int b, int c)
    {
        QList<std::pair<int, int>> todas;
        for (int x = 0; a * x <= c; ++x) {
            if ((c - a * x) % b == 0)
                todas.append({x, (c - a * x) / b});
        }
        const auto lista = resuelve(a, b, c).lista;
        QCOMPARE(lista.size(), todas.size());
        for (qsizetype i = 0; i < lista.size(); ++i) {
            QCOMPARE(lista[i].numero, std::int64_t(i + 1));
            QCOMPARE(lista[i].x, std::int64_t(todas[i].first));
            QCOMPARE(lista[i].y, std::int64_t(todas[i].second));
        }
    }
};

QTEST_GUILESS_MAIN(TestEcuacionDiofantica)
#include "tst_EcuacionDiofantica.moc"
