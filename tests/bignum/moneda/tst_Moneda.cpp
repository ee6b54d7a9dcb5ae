// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/Azar.h"
#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/Moneda.h"

#include <QTest>
#include <limits>
#include <random>

using namespace Qt::Literals::StringLiterals;

class TestMoneda : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texto_data()
    {
        QTest::addColumn<QString>("texto");
        QTest::addColumn<qint64>("diezmilesimas");
        QTest::newRow("whole") << u"97"_s << qint64(970000);
        QTest::newRow("comma") << u" -1,5 "_s << qint64(-15000);
        QTest::newRow("point first") << u".5"_s << qint64(5000);
        QTest::newRow("half to even, down") << u"0,00005"_s << qint64(0);
        QTest::newRow("half to even, up") << u"0,00015"_s << qint64(2);
        QTest::newRow("just above a half") << u"0,00005000000000000000001"_s << qint64(1);
        QTest::newRow("negative half") << u"-0,00025"_s << qint64(-2);
        QTest::newRow("third") << u"0,"_s + QString(100, u'3') << qint64(3333);
        QTest::newRow("largest") << u"922337203685477,5807"_s << std::numeric_limits<qint64>::max();
        QTest::newRow("least") << u"-922337203685477,5808"_s << std::numeric_limits<qint64>::min();
    }
    void texto()
    {
        QFETCH(QString, texto);
        const auto valor = Moneda::deTexto(texto);
        QVERIFY(valor);
        QTEST(qint64(valor->diezmilesimas()), "diezmilesimas");
        QCOMPARE(Moneda::deTexto(valor->texto()), valor);
    }

    void noSonNumeros()
    {
        for (const QString &malo :
             {QString(), u"-"_s, u","_s, u"1/2"_s, u"1e3"_s, u"1,2,3"_s, u"Error"_s, u"--1"_s})
            QVERIFY2(!Moneda::deTexto(malo), qPrintable(malo));
    }

    void desbordamientos()
    {
        const Moneda mayor = Moneda::deEntero(Moneda::MaximoEntero);
        QCOMPARE(desborda([] { (void)Moneda::deTexto(u"922337203685477,5808"_s); }), true);
        QCOMPARE(desborda([] { (void)Moneda::deTexto(QString(5000, u'9')); }), true);
        QCOMPARE(desborda([] { (void)Moneda::deEntero(Moneda::MaximoEntero + 1); }), true);
        QCOMPARE(desborda([] { (void)Moneda::deReal(std::nan("")); }), true);
        QCOMPARE(desborda([] { (void)Moneda::deReal(922337203685478.0); }), true);
        QCOMPARE(desborda([&] { (void)(mayor + Moneda::deEntero(1)); }), true);
        QCOMPARE(desborda([&] { (void)(-mayor - Moneda::deEntero(2)); }), true);
        QCOMPARE(desborda([&] { (void)(mayor * Moneda::deEntero(2)); }), true);
        QCOMPARE(desborda([] { (void)Moneda::deEntero(32768).aEntero16(); }), true);
        QCOMPARE(desborda([] { (void)Moneda::deEntero(2147483648).aEntero32(); }), true);
        QCOMPARE(desborda([&] { (void)(mayor + Moneda::deEntero(0)); }), false);
    }

    void redondeoAEnteros()
    {
        QCOMPARE(Moneda::deTexto(u"2,5"_s)->aEntero32(), 2);
        QCOMPARE(Moneda::deTexto(u"3,5"_s)->aEntero32(), 4);
        QCOMPARE(Moneda::deTexto(u"-2,5001"_s)->aEntero16(), std::int16_t(-3));
        QCOMPARE(Moneda::deTexto(u"-2,9"_s)->entero(), -2);
    }

    void producto()
    {
        QCOMPARE(*Moneda::deTexto(u"0,01"_s) * *Moneda::deTexto(u"0,005"_s),
                 Moneda::deDiezmilesimas(0));
        QCOMPARE(*Moneda::deTexto(u"0,01"_s) * *Moneda::deTexto(u"0,015"_s),
                 Moneda::deDiezmilesimas(2));
        QCOMPARE(Moneda::deEntero(-30'000'000) * Moneda::deEntero(30'000'000),
                 Moneda::deEntero(-900'000'000'000'000));
    }

    void resto_data()
    {
        QTest::addColumn<qint64>("a");
        QTest::addColumn<qint64>("b");
        QTest::addColumn<qint64>("resto");
        QTest::newRow("plain") << qint64(240) << qint64(46) << qint64(10);
        QTest::newRow("negative dividend") << qint64(-7) << qint64(3) << qint64(2);
        QTest::newRow("exact") << qint64(-9) << qint64(3) << qint64(0);
        QTest::newRow("largest by itself less one")
            << qint64(922337203685477) << qint64(922337203685476) << qint64(1);
        QTest::newRow("just below a multiple")
            << qint64(3) * 307445734561825 - 1 << qint64(3) << qint64(2);
        QTest::newRow("by one, where ten-thousandths fill 63 bits")
            << qint64(461168601842741) << qint64(1) << qint64(0);
        QTest::newRow("a remainder whose ten-thousandths fill 52 bits")
            << qint64(900000000000002) << qint64(500000000000001) << qint64(400000000000001);
        QTest::newRow("large prime")
            << qint64(922337203685477) << qint64(999983) << qint64(922337203685477 % 999983);
    }
    void resto()
    {
        QFETCH(qint64, a);
        QFETCH(qint64, b);
        QFETCH(qint64, resto);
        QCOMPARE(ModCy(Moneda::deEntero(a), Moneda::deEntero(b)), Moneda::deEntero(resto));
    }

    /// Ten-thousandths of large whole numbers do not fit the mantissa of a double; the numbers
    /// themselves do, and must come out whole.
    void losEnterosGrandesSonExactos()
    {
        std::mt19937_64 azar(7);
        std::uniform_int_distribution<qint64> grande(1, Moneda::MaximoEntero);
        for (int i = 0; i < 20'000; ++i) {
            const qint64 a = grande(azar), b = grande(azar) >> (i % 48);
            const Moneda monedaA = Moneda::deEntero(a);
            QCOMPARE(Moneda::deReal(monedaA.real()), monedaA);
            if (b == 0)
                continue;
            QCOMPARE(ModCy(monedaA, Moneda::deEntero(b)), Moneda::deEntero(a % b));
            const qint64 multiplo = a - a % b;
            QCOMPARE(cociente(Moneda::deEntero(multiplo), Moneda::deEntero(b)),
                     Moneda::deEntero(multiplo / b));
        }
    }

    void dividirPorCero()
    {
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, (void)ModCy(Moneda::deEntero(1), Moneda()));
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, (void)cociente(Moneda::deEntero(1), Moneda()));
    }

    void azar()
    {
        QSet<int> vistos;
        for (int i = 0; i < 500; ++i) {
            const int r = AleatorioEntre(-2, 3);
            QVERIFY(r >= -2 && r <= 3);
            vistos << r;
        }
        QCOMPARE(vistos.size(), 6);
        QCOMPARE(AleatorioEntre(7, 7), 7);
        constexpr auto mayor = std::numeric_limits<std::int32_t>::max();
        QCOMPARE(desborda([] { (void)AleatorioEntre(0, mayor); }), true);
        QCOMPARE(desborda([] { (void)AleatorioEntre(1, mayor); }), false);
    }

private:
    template <typename Accion>
    static bool desborda(Accion accion)
    {
        try {
            accion();
        } catch (const ErrorEjecucion &error) {
            return error.numero() == ErrorEjecucion::Desbordamiento;
        }
        return false;
    }
};

QTEST_GUILESS_MAIN(TestMoneda)
#include "tst_Moneda.moc"
