// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/Azar.h"
#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/Moneda.h"

#include "tests/Tabla.h"

#include <limits>
#include <random>

class TestMoneda : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texto_data()
    {
        filasDeTexto<QString, QString>(uR"(
97 | 970000 || -1,5 | -15000 || .5 | 5000
halves: || 0,00005 | 0 || 0,00015 | 2 || -0,00025 | -2 || 0,00005000000000000000001 | 1
ends: || 922337203685477,5807 | 9223372036854775807
ends: || -922337203685477,5808 | -9223372036854775808)"_s);
        otraFila<QString, QString>(u"third"_s, u"0,"_s + QString(100, u'3'), u"3333"_s);
        otraFila<QString, QString>(u"blanks"_s, u" -1,5 "_s, u"-15000"_s);
    }
    void texto()
    {
        const auto [texto, diezmilesimas] = estaFila<QString, QString>();
        const auto valor = Moneda::deTexto(texto);
        QVERIFY(valor);
        QCOMPARE(QString::number(qint64(valor->diezmilesimas())), diezmilesimas);
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

    void redondeos()
    {
        const auto m = [](const QString &texto) { return *Moneda::deTexto(texto); };
        QCOMPARE(m(u"2,5"_s).aEntero32(), 2);
        QCOMPARE(m(u"3,5"_s).aEntero32(), 4);
        QCOMPARE(m(u"-2,5001"_s).aEntero16(), std::int16_t(-3));
        QCOMPARE(m(u"-2,9"_s).entero(), -2);
        QCOMPARE(m(u"0,01"_s) * m(u"0,005"_s), Moneda::deDiezmilesimas(0));
        QCOMPARE(m(u"0,01"_s) * m(u"0,015"_s), Moneda::deDiezmilesimas(2));
        QCOMPARE(m(u"-30000000"_s) * m(u"30000000"_s), m(u"-900000000000000"_s));
    }

    void resto()
    {
        struct Caso
        {
            qint64 a, b, resto;
        };
        // Some have ten-thousandths that fill 52 or 63 bits.
        for (const auto &[a, b, resto] :
             std::initializer_list<Caso>{{240, 46, 10},
                                         {-7, 3, 2},
                                         {-9, 3, 0},
                                         {922337203685477, 922337203685476, 1},
                                         {3 * 307445734561825 - 1, 3, 2},
                                         {461168601842741, 1, 0},
                                         {900000000000002, 500000000000001, 400000000000001},
                                         {922337203685477, 999983, 922337203685477 % 999983}})
            QCOMPARE(ModCy(Moneda::deEntero(a), Moneda::deEntero(b)), Moneda::deEntero(resto));
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, (void)ModCy(Moneda::deEntero(1), Moneda()));
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, (void)cociente(Moneda::deEntero(1), Moneda()));
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
