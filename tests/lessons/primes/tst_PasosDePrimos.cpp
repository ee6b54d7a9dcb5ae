// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/primes/DivisionTentativa.h"
#include "lessons/primes/steps/CertificadoPratt.h"
#include "lessons/primes/steps/PasosDeCarmichael.h"
#include "lessons/primes/steps/PasosDeCriba.h"
#include "lessons/primes/steps/PasosDeFactorizacion.h"
#include "lessons/primes/steps/PasosDeTest.h"
#include "tests/Tabla.h"
#include "tests/shell/support/RevisorDePasos.h"

#include <random>

namespace {

/// The first fault of the steps; "silent" where they compare less than that many relations.
QString falta(const Pasos &pasos, int alMenos)
{
    RevisorDeFormulas revisor;
    const QString fallo = revisor.revisa(pasos);
    return fallo.isEmpty() && revisor.comparadas() < alMenos ? u"silent"_s : fallo;
}

/// All sentences, to be looked through.
QString frases(const Pasos &pasos)
{
    QString todas;
    for (qsizetype i = 0; i < pasos.cuantos(); ++i)
        todas += pasos.paso(i).frase + u'\n';
    return todas;
}

Pasos ingenuos(std::int64_t n, bool mejorado)
{
    RastroDeDivision rastro;
    Moneda resto = Moneda::deEntero(n);
    const ColFactores factores = mejorado ? FactorizaMejorado(resto, {}, &rastro).completa()
                                          : FactorizaIngenuo(resto, {}, &rastro).completa();
    TablaDeFactores tabla = tablaDe(QString::number(n), factores);
    tabla.cortes = cortesDe(rastro);
    return pasosDeFactorizacion(tabla);
}

} // namespace

/// The steps of the tools of the lesson: every formula is checked by computing both of its sides.
class TestPasosDePrimos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testAlAzar()
    {
        std::mt19937_64 azar(16);
        for (int i = 0; i < Sorteos; ++i) {
            // Few of the longest: their certificates factor.
            const int bits = i % 50 == 0 ? 64 : 2 + static_cast<int>(azar() % 34);
            QString n = QString::number((azar() >> (64 - bits)) | (i % 4 == 0 ? 0 : 1));
            if (i % 3 == 0)
                n = PrimoSiguiente(n);
            const qulonglong valor = n.toULongLong();
            const QString base =
                i % 2 == 0 && valor > 4 ? QString::number(2 + azar() % (valor - 3)) : QString();
            const QString fallo = falta(pasosDeTest(n, EsPrimo(n), base), 1);
            QVERIFY2(fallo.isEmpty(), qPrintable(n + u' ' + base + u": "_s + fallo));
        }
    }

    void testEnLosBordes_data()
    {
        filasDeTexto<QString, QString, int, QString>(uR"(
            0 |  | 1 | mayores que 1 || 1 |  | 1 | mayores que 1 || -7 |  | 1 | no es un número natural
            90+7 |  | 1 | no es un número natural || 2 |  | 2 | es primo || +2 |  | 2 | es primo || 3 |  | 2 | es primo || 4 |  | 2 | divisible por 2
            9 |  | 2 | divisible por 3 || 5 |  | 7 | pasa el test || " 0091 " |  | 2 | divisible por 7
            561 |  | 2 | divisible por 3 || 561 | 2 | 8 | 67 || 2047 | 2 | 5 | lo disfraza || 2047 |  | 2 | divisible por 23
            10403 |  | 6 | testigo || 2305843009213693951 |  | 9 | Certificado
            1152921504606846883 |  | 14 | Certificado || 18446744073709551557 |  | 13 | Certificado
            170141183460469231731687303715884105727 |  | 6 | primo probable)"_s);
    }
    void testEnLosBordes()
    {
        const auto [n, base, pasos, dicho] = estaFila<QString, QString, int, QString>();
        const Pasos estos = pasosDeTest(n, EsPrimo(n), base);
        QCOMPARE(falta(estos, naturalEscrito(n).isEmpty() ? 0 : 1), QString());
        QVERIFY2(frases(estos).contains(dicho), qPrintable(frases(estos)));
        QCOMPARE(estos.cuantos(), pasos);
    }

    /// Only the numbers that the formulas of a certificate rest on need no node: all others have
    /// one.
    void certificadoCompleto()
    {
        const CertificadoPratt certificado(u"2305843009213693951"_s);
        QStringList probados;
        for (const NodoDePratt &nodo : certificado.nodos())
            probados << nodo.p;
        for (const NodoDePratt &nodo : certificado.nodos()) {
            for (const auto &factor : nodo.factores)
                QVERIFY(factor.primo.toULongLong() < CertificadoPratt::Evidentes ||
                        probados.contains(factor.primo));
        }
        QCOMPARE(probados.first(), u"2305843009213693951"_s);
        QCOMPARE(probados.size(), 4); // 151, 331 and 1321 besides
    }

    void numerosMuyLargos()
    {
        const QString grande = PrimoSiguiente(Evalua(u"10^700"_s));
        const Pasos pasos = pasosDeTest(grande, true);
        QVERIFY(frases(pasos).contains(u"2048"_s));
        QCOMPARE(falta(pasos, 2), QString());
        QCOMPARE(falta(pasosDeTest(Evalua(u"2^2000+1"_s), false), 3), QString());
        const Pasos sinProbar = pasosDeTest(QString(24'576, u'7'), false);
        QCOMPARE(sinProbar.cuantos(), 1);
        QVERIFY(frases(sinProbar).contains(u"sin haberlo probado"_s));
    }

    void carmichael_data()
    {
        filasDeTexto<QString, QString>(uR"(
            561 | es un número de Carmichael || 1105 | es un número de Carmichael || 41041 | es un número de Carmichael
            825265 | es un número de Carmichael || 101101 | es un número de Carmichael || 9746347772161 | es un número de Carmichael
            349407515342287435050603204719587201 | es un número de Carmichael
            9 | no es un número de Carmichael || 341 | no es un número de Carmichael || 2047 | no es un número de Carmichael
            10403 | no es un número de Carmichael || 3825123056546413051 | es un número de Carmichael)"_s);
    }
    void carmichael()
    {
        const auto [n, dicho] = estaFila<QString, QString>();
        const Pasos pasos = pasosDeCarmichael(n);
        QVERIFY2(frases(pasos).contains(dicho), qPrintable(frases(pasos)));
        QCOMPARE(falta(pasos, 2), QString());
        QCOMPARE(frases(pasos).contains(u"raíz cuadrada de 1"_s), pasos.cuantos() > 3);
    }

    void carmichaelAlAzar()
    {
        std::mt19937_64 azar(17);
        int hallados = 0;
        constexpr int Pequenos = 5'000; // all odd numbers from 9 on
        for (int i = 0; i < Pequenos + Sorteos; ++i) {
            const unsigned n = i < Pequenos ? 2 * static_cast<unsigned>(i) + 9
                                            : static_cast<unsigned>(azar() >> 32) | 1U;
            const QString numero = QString::number(n);
            if (EsPrimo(numero))
                continue;
            const Pasos pasos = pasosDeCarmichael(numero);
            const QString fallo = falta(pasos, 2);
            QVERIFY2(fallo.isEmpty(), qPrintable(numero + u": "_s + fallo));
            hallados += i < Pequenos && pasos.cuantos() > 3 ? 1 : 0;
        }
        QCOMPARE(hallados, 7); // 561 1105 1729 2465 2821 6601 8911
    }

    void criba()
    {
        QVERIFY(pasosDeCriba(1).vacios());
        for (int n = 2; n <= TableroDeCriba::MayorTablero; ++n) {
            const TableroDeCriba tablero(n);
            QCOMPARE(n - 1 - tablero.compuestos(), CuantosPrimos(n));
            if (n % 30 == 4 || n < 30)
                QCOMPARE(falta(pasosDeCriba(n), 3), QString());
        }
        RevisorDeFormulas revisor;
        revisaAlAzar(revisor, [](QRandomGenerator &azar) {
            const int mayor = azar.bounded(4) == 0 ? 65'000 : TableroDeCriba::MayorTablero;
            return pasosDeCriba(2 + azar.bounded(mayor - 1));
        });
        const Pasos larga = pasosDeCriba(65000);
        QCOMPARE(larga.cuantos(), 8 + 511 + 1);
        QVERIFY(larga.animables());
        QVERIFY(larga.paso(0).frase.contains(u"65000"_s));
        const auto llenas = [&](qsizetype paso) {
            const auto figuras = larga.paso(paso).lamina.figuras();
            return std::count_if(figuras.begin(), figuras.end(),
                                 [](const Figura &f) { return f.rellena; });
        };
        QCOMPARE(llenas(0), 1);
        QCOMPARE(llenas(519), 400 - 78 - 1);
    }

    void factorizacionAlAzar()
    {
        std::mt19937_64 azar(18);
        for (int i = 0; i < Sorteos; ++i) {
            const int bits = 1 + static_cast<int>(azar() % 40);
            const auto n = static_cast<std::int64_t>(azar() >> (64 - bits)) + 2;
            // Trial division is for those that it ends soon.
            const Pasos pasos = i % 3 == 0 || n > 50'000
                                    ? pasosDeFactorizacion(factorizaGrande(QString::number(n)))
                                    : ingenuos(n, i % 3 == 1);
            const QString fallo = falta(pasos, 1);
            QVERIFY2(fallo.isEmpty(), qPrintable(QString::number(n) + u": "_s + fallo));
        }
    }

    void factorizacionEnLosBordes_data()
    {
        filasDeTexto<QString, int>(uR"(
            0 | 0 || 1 | 0 || 2 | 2 || 360 | 4 || -12 | 3 || 1024 | 2 || 2^128-1 | 10 || 3^40*(2^61-1) | 3)"_s);
    }
    void factorizacionEnLosBordes()
    {
        const auto [n, pasos] = estaFila<QString, int>();
        const Pasos estos = pasosDeFactorizacion(factorizaGrande(Evalua(QString(n))));
        QCOMPARE(estos.cuantos(), pasos);
        QCOMPARE(falta(estos, pasos == 0 ? 0 : 1), QString());
        QCOMPARE(frases(estos).contains(u"sin su signo"_s), n.startsWith(u'-'));
    }

    void divisiones()
    {
        for (const bool mejorado : {false, true}) {
            const Pasos pasos = ingenuos(360, mejorado);
            QCOMPARE(pasos.cuantos(), 7);
            QCOMPARE(falta(pasos, 7), QString());
        }
        RastroDeDivision rastro;
        QVERIFY(fraseDelAvance(rastro).endsWith(u"alcanzado: 2. Aún no hay factores."_s));
        FactorizaMejorado(Moneda::deEntero(12 * 97), {}, &rastro).completa();
        QVERIFY(fraseDelAvance(rastro).endsWith(
            u"alcanzado: 11. Factores hallados: 2 · 2 · 3 · 97."_s));
    }

private:
    static int CuantosPrimos(int n)
    {
        int primos = 0;
        for (int k = 2; k <= n; ++k)
            primos += EsPrimo(QString::number(k)) ? 1 : 0;
        return primos;
    }
};

QTEST_GUILESS_MAIN(TestPasosDePrimos)
#include "tst_PasosDePrimos.moc"
