#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "lessons/primes/DivisionTentativa.h"
#include "lessons/primes/FactoresGrandes.h"
#include "shell/core/Corrida.h"

#include <QTest>
#include <random>

using namespace Qt::Literals::StringLiterals;

namespace {

QString descripcion(const ColFactores &factores)
{
    QStringList partes;
    for (const clsFactorPrimo &factor : factores)
        partes << factor.Primo().texto() + u'^' + QString::number(factor.exponente());
    return partes.join(u' ');
}

QString descripcion(const FactoresGrandes &factores)
{
    QStringList partes;
    for (const FilaDeFactor &fila : factores.filas)
        partes << fila.factor + u'^' + fila.exponente;
    return partes.join(u' ');
}

QString ingenuo(std::int64_t n)
{
    Corrida corrida;
    Moneda moneda = Moneda::deEntero(n);
    return descripcion(FactorizaIngenuo(moneda, corrida));
}

QString mejorado(std::int64_t n)
{
    Corrida corrida;
    return descripcion(FactorizaMejorado(Moneda::deEntero(n), corrida));
}

int errorDe(const std::function<void()> &accion)
{
    try {
        accion();
    } catch (const ErrorEjecucion &error) {
        return error.numero();
    }
    return 0;
}

} // namespace

/// The collection of factors and the three algorithms.
class TestDivisionTentativa : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coleccion()
    {
        ColFactores factores;
        const Moneda siete = Moneda::deEntero(7);
        factores.Add(siete, 3);
        factores.Add(Moneda::deEntero(2), 1);
        QCOMPARE(factores.Add(siete, 40).exponente(), 4);
        QCOMPARE(factores.Count(), 2);
        QCOMPARE(descripcion(factores), u"7^4 2^1"_s);
        QCOMPARE(&factores.Item(1), &factores.Item(u"7P"_s));
        QCOMPARE(errorDe([&] { factores.Item(3); }), ErrorEjecucion::IndiceFueraDeRango);
        QCOMPARE(errorDe([&] { factores.Item(0); }), ErrorEjecucion::IndiceFueraDeRango);
        QCOMPARE(errorDe([&] { factores.Item(u"3P"_s); }), ErrorEjecucion::ArgumentoNoValido);
        factores.Item(1).Factores().Add(siete, 1);
        QCOMPARE(factores.Item(1).Factores().Count(), 1);
        factores.Remove(1);
        factores.Remove(u"2P"_s);
        QCOMPARE(factores.Count(), 0);
        QCOMPARE(errorDe([&] { factores.Remove(u"2P"_s); }), ErrorEjecucion::ArgumentoNoValido);
    }

    void losTresAlgoritmos_data()
    {
        QTest::addColumn<qint64>("n");
        QTest::addColumn<QString>("factores");
        QTest::newRow("360") << qint64(360) << u"2^3 3^2 5^1"_s;
        QTest::newRow("97") << qint64(97) << u"97^1"_s;
        QTest::newRow("one") << qint64(1) << QString();
        QTest::newRow("zero") << qint64(0) << QString();
        QTest::newRow("2^49") << (qint64(1) << 49) << u"2^49"_s;
        QTest::newRow("square of a prime") << qint64(10'609) << u"103^2"_s;
        QTest::newRow("5^21") << qint64(476'837'158'203'125) << u"5^21"_s;
        QTest::newRow("5, 7, 11, 13") << qint64(25 * 49 * 11 * 13) << u"5^2 7^2 11^1 13^1"_s;
    }
    void losTresAlgoritmos()
    {
        QFETCH(qint64, n);
        QFETCH(QString, factores);
        QCOMPARE(mejorado(n), factores);
        QCOMPARE(descripcion(factorizaGrande(QString::number(n))), factores);
        QCOMPARE(ingenuo(n), factores);
    }

    /// The divisions do not look at the sign, but only those by 2 and 3 come before n > 1 is asked.
    void negativos()
    {
        QCOMPARE(mejorado(-360), u"2^3 3^2"_s);
        QCOMPARE(mejorado(-1), QString());
        QCOMPARE(ingenuo(-360), QString());
    }

    /// Random products of small primes, so that both divisions end soon.
    void alAzar()
    {
        std::mt19937_64 azar(20261121);
        for (int vuelta = 0; vuelta < 300; ++vuelta) {
            std::int64_t n = 1;
            while (n < 1'000'000'000)
                n *= std::uniform_int_distribution<std::int64_t>(1, 2000)(azar);
            const QString esperado = descripcion(factorizaGrande(QString::number(n)));
            QCOMPARE(mejorado(n), esperado);
            QCOMPARE(ingenuo(n), esperado);
        }
    }

    void elContadorDe16Bits()
    {
        Corrida corrida;
        const auto factoriza = [&](std::int64_t n) {
            return errorDe([&] { FactorizaMejorado(Moneda::deEntero(n), corrida); });
        };
        // The 32 768th divisor that does not divide is 98305: the primes on either side of its
        // square, and the squares of the primes on either side of it.
        QCOMPARE(mejorado(9'663'873'007), u"9663873007^1"_s);
        QCOMPARE(factoriza(9'663'873'041), ErrorEjecucion::Desbordamiento);
        QCOMPARE(mejorado(std::int64_t(98'299) * 98'299), u"98299^2"_s);
        QCOMPARE(factoriza(std::int64_t(98'317) * 98'317), ErrorEjecucion::Desbordamiento);
    }

    void elIngenuoSeDetiene()
    {
        Corrida *esta = nullptr;
        Corrida corrida([&] { esta->detener(); });
        esta = &corrida;
        Moneda n = Moneda::deEntero(std::int64_t(12) * 9'999'999'999'971);
        const ColFactores factores = FactorizaIngenuo(n, corrida);
        QCOMPARE(descripcion(factores), u"2^2 3^1"_s);
        QCOMPARE(n.texto(), u"9999999999971"_s);
    }

    void losGrandesSeRecomponen()
    {
        const QString n = u"2^128-1"_s;
        const FactoresGrandes factores = factorizaGrande(Evalua(QString(n)));
        QVERIFY(factores.completa);
        QCOMPARE(factores.filas.size(), 9);
        QString producto = u"1"_s;
        for (const FilaDeFactor &fila : factores.filas) {
            QVERIFY(EsPrimo(fila.factor));
            producto += u"*"_s + fila.factor + u"^"_s + fila.exponente;
        }
        QCOMPARE(Evalua(producto), Evalua(QString(n)));
    }

    void muchosPrimosDistintos()
    {
        // The product of the primes below 1000 has 168 factors in 416 digits.
        QString producto = u"1"_s;
        for (int p = 2; p < 1000; ++p) {
            if (EsPrimo(QString::number(p)))
                producto += u"*"_s + QString::number(p);
        }
        const FactoresGrandes factores = factorizaGrande(Evalua(producto));
        QVERIFY(factores.completa);
        QCOMPARE(factores.filas.size(), 168);
    }

    void loQueNoEsNumeroNoTieneFactores()
    {
        for (const QString &texto : {QString(), u"1/2"_s, u"Error"_s, u"0"_s}) {
            QVERIFY(factorizaGrande(texto).filas.isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(TestDivisionTentativa)
#include "tst_DivisionTentativa.moc"
