// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "lessons/primes/DivisionTentativa.h"
#include "lessons/primes/TablaDeFactores.h"
#include "tests/Tabla.h"

#include <QLocale>
#include <QRegularExpression>
#include <random>

namespace {

/// "2^2 3^1", and what became of the rest when it was not factored.
QString descripcion(const TablaDeFactores &tabla)
{
    QStringList partes;
    for (const FilaDeFactor &fila : tabla.filas)
        partes << fila.factor + u'^' + fila.exponente;
    if (tabla.desenlace != TablaDeFactores::Completa)
        partes << u"desenlace %1"_s.arg(tabla.desenlace);
    return partes.join(u' ');
}

QString ingenuo(std::int64_t n, Billete billete = {})
{
    Moneda moneda = Moneda::deEntero(n);
    const ColFactores factores = FactorizaIngenuo(moneda, std::move(billete)).completa();
    return descripcion(tablaDe(QString::number(n), factores));
}

QString mejorado(std::int64_t n)
{
    const ColFactores factores = FactorizaMejorado(Moneda::deEntero(n), {}).completa();
    return descripcion(tablaDe(QString::number(n), factores));
}

QString avanzado(const QString &n)
{
    return descripcion(factorizaGrande(n));
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

Q_DECLARE_METATYPE(TablaDeFactores)

/// The collection of factors and the three algorithms.
class TestDivisionTentativa : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(u"es_ES"_s)); }

    void coleccion()
    {
        ColFactores factores;
        const Moneda siete = Moneda::deEntero(7);
        factores.Add(siete, 3);
        factores.Add(Moneda::deEntero(2), 1);
        QCOMPARE(factores.Add(siete, 40).exponente(), 4);
        QCOMPARE(factores.Count(), 2);
        QCOMPARE(factores.Item(2).Primo(), Moneda::deEntero(2));
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

    void losTresAlgoritmos()
    {
        const std::pair<std::int64_t, QString> casos[] = {
            {360, u"2^3 3^2 5^1"_s},
            {97, u"97^1"_s},
            {1, QString()},
            {0, u"desenlace %1"_s.arg(TablaDeFactores::EsCero)},
            {std::int64_t(1) << 49, u"2^49"_s},
            {10'609, u"103^2"_s},
            {476'837'158'203'125, u"5^21"_s},
            {25 * 49 * 11 * 13, u"5^2 7^2 11^1 13^1"_s}};
        for (const auto &[n, factores] : casos) {
            QCOMPARE(mejorado(n), factores);
            QCOMPARE(avanzado(QString::number(n)), factores);
            QCOMPARE(ingenuo(n), factores);
        }
    }

    /// The divisions do not look at the sign, but only those by 2 and 3 come before n > 1 is asked.
    void negativos()
    {
        const QString negativo = u"desenlace %1"_s.arg(TablaDeFactores::EsNegativo);
        QCOMPARE(mejorado(-360), u"2^3 3^2 "_s + negativo);
        QCOMPARE(mejorado(-1), negativo);
        QCOMPARE(ingenuo(-360), negativo);
        QCOMPARE(avanzado(u"-360"_s), u"2^3 3^2 5^1"_s);
    }

    /// Random products of small primes, so that both divisions end soon.
    void alAzar()
    {
        std::mt19937_64 azar(20261121);
        for (int vuelta = 0; vuelta < 300; ++vuelta) {
            std::int64_t n = 1;
            while (n < 1'000'000'000)
                n *= std::uniform_int_distribution<std::int64_t>(1, 2000)(azar);
            const QString esperado = avanzado(QString::number(n));
            QCOMPARE(mejorado(n), esperado);
            QCOMPARE(ingenuo(n), esperado);
        }
    }

    void elContadorDe16Bits()
    {
        const auto factoriza = [](std::int64_t n) { return errorDe([n] { mejorado(n); }); };
        // The 32 768th divisor that does not divide is 98305: the primes on either side of its
        // square, and the squares of the primes on either side of it.
        QCOMPARE(mejorado(9'663'873'007), u"9663873007^1"_s);
        QCOMPARE(factoriza(9'663'873'041), ErrorEjecucion::Desbordamiento);
        QCOMPARE(mejorado(std::int64_t(98'299) * 98'299), u"98299^2"_s);
        QCOMPARE(factoriza(std::int64_t(98'317) * 98'317), ErrorEjecucion::Desbordamiento);
    }

    /// Three ends and what is said of them, by the numbers that come to them.
    void frases_data()
    {
        QTest::addColumn<TablaDeFactores>("tabla");
        QTest::addColumn<QString>("producto");
        QTest::addColumn<QString>("frase");
        using T = TablaDeFactores;
        const auto fila = [](const char *nombre, const T &tabla, const QString &producto,
                             const QString &frase) {
            QTest::newRow(nombre) << tabla << producto << frase;
        };
        const QList<FilaDeFactor> cuatroYTres{{u"2"_s, u"2"_s}, {u"3"_s, u"1"_s}};
        const QList<FilaDeFactor> sieteYOtro{{u"7"_s, u"1"_s}, {u"1155"_s, u"12"_s, false}};
        fila("complete", {u"12"_s, cuatroYTres}, u"2² · 3"_s, u"Factores primos de 12."_s);
        fila("prime", {u"97"_s, {{u"97"_s, u"1"_s}}}, u"97"_s, u"97: el único factor es primo."_s);
        fila("one", {u"1"_s}, {}, u"1 no tiene factores primos."_s);
        fila("stopped", {u"119999999999652"_s, cuatroYTres, T::Detenida, u"9999999999971"_s},
             u"2² · 3 · (9999999999971)"_s,
             u"Detenida. De 119.999.999.999.652 falta por descomponer 9.999.999.999.971."_s);
        fila("stopped before any", {u"97"_s, {}, T::Detenida, u"97"_s}, {},
             u"Detenida. De 97 falta por descomponer 97."_s);
        fila("composite left", {QString(99, u'1'), sieteYOtro, T::QuedaCompuesto},
             u"7 · (1155)¹²"_s,
             u"Factores de 111111…111111 (99 cifras). Lo que está en rojo es compuesto y no se ha "
             u"podido descomponer."_s);
        fila("fraction", {u"25/2"_s, {}, T::NoEsEntero}, {},
             u"25/2 no es un número entero: no tiene factores primos."_s);
    }
    void frases()
    {
        QFETCH(TablaDeFactores, tabla);
        QTEST(tabla.producto(), "producto");
        QTEST(tabla.frase(), "frase");
    }

    void elIngenuoSeDetiene()
    {
        const auto parada = std::make_shared<Parada>();
        const Billete billete(parada, nullptr);
        parada->detener();
        QCOMPARE(ingenuo(360, billete), u"desenlace %1"_s.arg(TablaDeFactores::Detenida));
        // A later run is another.
        QCOMPARE(ingenuo(360, Billete(parada, nullptr)), u"2^3 3^2 5^1"_s);
    }

    void losGrandesSeRecomponen()
    {
        const QString n = Evalua(u"2^128-1"_s);
        const TablaDeFactores tabla = factorizaGrande(n);
        QCOMPARE(tabla.desenlace, TablaDeFactores::Completa);
        QCOMPARE(tabla.filas.size(), 9);
        QString producto = u"1"_s;
        for (const FilaDeFactor &fila : tabla.filas) {
            QVERIFY(EsPrimo(fila.factor));
            producto += u"*"_s + fila.factor + u"^"_s + fila.exponente;
        }
        QCOMPARE(Evalua(producto), n);
    }

    void muchosPrimosDistintos()
    {
        // The product of the primes below 1000 has 168 factors in 416 digits.
        QString producto = u"1"_s;
        for (int p = 2; p < 1000; ++p) {
            if (EsPrimo(QString::number(p)))
                producto += u"*"_s + QString::number(p);
        }
        const TablaDeFactores tabla = factorizaGrande(Evalua(producto));
        QCOMPARE(tabla.desenlace, TablaDeFactores::Completa);
        QCOMPARE(tabla.filas.size(), 168);
    }

    /// By what each factor of a number was found, which the student reads below it.
    void hallazgos_data()
    {
        filasDeTexto<QString, QString>(uR"(
            none | 97 | .*
            division | 2^10*3 | (Hallado por división: .*\.;?){2}
            sieve, two primes of 25 digits | sigprimo(3*10^24)*sigprimo(7*10^24) | (Hallado \
              por (la criba cuadrática: [\d.]+ relaciones|la curva elíptica .*), ?.*s\.;?){2})"_s);
    }
    void hallazgos()
    {
        auto [expresion, forma] = estaFila<QString, QString>();
        QStringList hallazgos;
        for (const FilaDeFactor &fila : factorizaGrande(Evalua(expresion)).filas)
            hallazgos << fila.hallazgo;
        const QRegularExpression entera(QRegularExpression::anchoredPattern(forma));
        QVERIFY2(entera.match(hallazgos.join(u';')).hasMatch(), qPrintable(hallazgos.join(u';')));
    }

    /// What is no whole number, and what is too large to be split: neither has "no factors".
    void otrosDesenlaces_data()
    {
        filasDeTexto<QString, bool, QString>(uR"(
            half | 1/2 | no | "" || fraction | 25/2 | no |
            9000 digits | (10^9000-1)/9*7 | yes | "3² · 7² · 11 · "
            9002 digits | 2*(10^9000+1) | yes | "2 · ")"_s);
    }
    void otrosDesenlaces()
    {
        const auto [expresion, compuesto, primeros] = estaFila<QString, bool, QString>();
        const TablaDeFactores tabla = factorizaGrande(Evalua(QString(expresion)));
        QCOMPARE(tabla.desenlace,
                 compuesto ? TablaDeFactores::QuedaCompuesto : TablaDeFactores::NoEsEntero);
        QVERIFY2(tabla.producto().startsWith(primeros), qPrintable(tabla.producto().left(80)));
        QVERIFY(tabla.filas.isEmpty() || !tabla.filas.last().primo);
    }
};

QTEST_GUILESS_MAIN(TestDivisionTentativa)
#include "tst_DivisionTentativa.moc"
