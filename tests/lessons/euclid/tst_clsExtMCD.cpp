// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/clsExtMCD.h"
#include "tests/Tabla.h"
#include "tests/lessons/euclid/Muestras.h"

#include <numeric>

class TestClsExtMCD : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void casos_data()
    {
        filasDeTexto<qint64, qint64, qint64, qint64, qint64, int>(uR"(
            240 by 46 | 46 | 240 | 2 | 47 | -9 | 5
            46 by 240 | 240 | 46 | 2 | -9 | 47 | 6
            both negative | -46 | -240 | 2 | -47 | 9 | 5
            first 0, second negative | 0 | -5 | 5 | 0 | -1 | 0
            second 0, first negative | -7 | 0 | 7 | -1 | 0 | 0
            two zeros | 0 | 0 | 1 | 0 | 0 | 0
            equal | 6 | 6 | 6 | 1 | 0 | 1
            largest by 1 | 1 | 922337203685477 | 1 | 1 | 0 | 1
            1 by largest | 922337203685477 | 1 | 1 | 0 | 1 | 2
            Fibonacci 72 and 73 | 498454011879264 | 806515533049393 | 1 | 308061521170129 | \
              -190392490709135 | 71)"_s);
    }
    void casos()
    {
        const auto [numero1, numero2, mcd, coeficiente1, coeficiente2, divisiones] =
            estaFila<qint64, qint64, qint64, qint64, qint64, int>();
        clsExtMCD objeto;
        objeto.ponNúmero1(Moneda::deEntero(numero1));
        objeto.ponNúmero2(Moneda::deEntero(numero2));
        QCOMPARE(qint64(objeto.MCD().entero()), mcd);
        QCOMPARE(qint64(objeto.Coeficiente1().entero()), coeficiente1);
        QCOMPARE(qint64(objeto.Coeficiente2().entero()), coeficiente2);
        QCOMPARE(int(objeto.NumDivisiones()), divisiones);
    }

    void identidadDeBezout()
    {
        Muestras muestras(1);
        clsExtMCD objeto;
        for (int i = 0; i < 20'000; ++i) {
            const bool extremos = i % 4 == 0;
            std::int64_t a = extremos ? muestras.extremo() : 1 + muestras.natural() / 2;
            std::int64_t b =
                extremos && i % 8 == 0 ? muestras.extremo() : 1 + muestras.natural() / 2;
            a = muestras.moneda() ? a : -a;
            b = muestras.moneda() ? b : -b;
            objeto.ponNúmero1(Moneda::deEntero(a));
            objeto.ponNúmero2(Moneda::deEntero(b));
            const Exacto combinado =
                exacto(objeto.Coeficiente1()) * a + exacto(objeto.Coeficiente2()) * b;
            QCOMPARE(objeto.MCD(), Moneda::deEntero(std::gcd(a, b)));
            QVERIFY2(combinado == exacto(objeto.MCD()) && objeto.Coeficiente1().esEntero() &&
                         objeto.Coeficiente2().esEntero(),
                     qPrintable(QStringLiteral("%1 %2").arg(a).arg(b)));
        }
    }

    /// Writing either number makes every result be computed anew, but the count of divisions
    /// outlives a computation without any.
    void escribirBorraElResultado()
    {
        clsExtMCD objeto;
        objeto.ponNúmero1(Moneda::deEntero(46));
        objeto.ponNúmero2(Moneda::deEntero(240));
        QCOMPARE(objeto.NumDivisiones(), std::int16_t(5));
        objeto.ponNúmero1(Moneda::deEntero(120));
        QCOMPARE(objeto.MCD(), Moneda::deEntero(120));
        QCOMPARE(objeto.NumDivisiones(), std::int16_t(1));
        objeto.ponNúmero2(Moneda::deEntero(50));
        QCOMPARE(objeto.MCD(), Moneda::deEntero(10));
        objeto.ponNúmero2(Moneda::deEntero(240));
        QCOMPARE(objeto.NumDivisiones(), std::int16_t(1));
        objeto.ponNúmero2(Moneda());
        QCOMPARE(objeto.Coeficiente1(), Moneda::deEntero(1));
        QCOMPARE(objeto.NumDivisiones(), std::int16_t(1));
    }
};

QTEST_GUILESS_MAIN(TestClsExtMCD)
#include "tst_clsExtMCD.moc"
