// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/TablaEuclides.h"
#include "tests/Tabla.h"
#include "tests/lessons/euclid/Muestras.h"

#include <QLocale>
#include <numeric>

namespace {

/// A table as text: "240 46 5 10 1 -5, 46 10 ...".
QString texto(const TablaEuclides &tabla)
{
    QStringList filas;
    for (const DivisionEuclides &d : tabla.divisiones())
        filas << u"%1 %2 %3 %4 %5 %6"_s
                     .arg(d.dividendo.texto(), d.divisor.texto(), d.cociente.texto(),
                          d.resto.texto())
                     .arg(d.coef1)
                     .arg(d.coef2);
    return filas.join(u", "_s);
}

TablaEuclides tabla(std::int64_t a, std::int64_t b, AlgoritmoEuclides algoritmo)
{
    return {Moneda::deEntero(a), Moneda::deEntero(b), algoritmo};
}

constexpr auto Estandar = AlgoritmoEuclides::Estandar;
constexpr auto Reducidos = AlgoritmoEuclides::RestosReducidos;

} // namespace

class TestTablaEuclides : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }

    void ejemplos_data()
    {
        filasDeTexto<qint64, qint64, bool, QString, QString>(uR"(
            standard | 240 | 46 | no | 240 46 5 10 1 -5, 46 10 4 6 -4 21, 10 6 1 4 5 -26, \
              6 4 1 2 -9 47, 4 2 2 0 23 -120 | (-9) · 240 + 47 · 46 = 2
            reduced | 240 | 46 | yes | 240 46 5 10 1 -5, 46 10 5 -4 -5 26, 10 4 2 2 11 -57, \
              4 2 2 0 -27 140 | El MCD es 2
            a tie keeps the positive remainder | 6 | 4 | yes | 6 4 1 2 1 -1, 4 2 2 0 -2 3 | \
              El MCD es 2
            one division: the divisor itself | 92 | 46 | no | 92 46 2 0 1 -2 | \
              0 · 92 + 1 · 46 = 46
            smaller dividend | 3 | 7 | no | 3 7 0 3 1 0, 7 3 2 1 -2 1, 3 1 3 0 7 -3 | \
              (-2) · 3 + 1 · 7 = 1
            negative dividend | -7 | 3 | no | -7 3 -3 2 1 3, 3 2 1 1 -1 -2, 2 1 2 0 3 7 | \
              (-1) · (-7) + (-2) · 3 = 1
            thousands | 1234567 | 1000 | no | 1234567 1000 1234 567 1 -1234, \
              1000 567 1 433 -1 1235, 567 433 1 134 2 -2469, 433 134 3 31 -7 8642, \
              134 31 4 10 30 -37037, 31 10 3 1 -97 119753, 10 1 10 0 1000 -1234567 | \
              (-97) · 1.234.567 + 119.753 · 1.000 = 1
            plain number | 5000 | 0 | yes |  | El MCD es 5000
            divisor 0, a plain divisor of all | 5000 | 0 | no |  | 1 · 5.000 + 0 · 0 = 5000
            two zeros | 0 | 0 | no |  | El divisor tiene que ser mayor que 0.
            negative divisor | 240 | -46 | no |  | El divisor tiene que ser mayor que 0.)"_s);
    }
    void ejemplos()
    {
        const auto [a, b, reducidos, filas, resultado] =
            estaFila<qint64, qint64, bool, QString, QString>();
        const TablaEuclides t = tabla(a, b, reducidos ? Reducidos : Estandar);
        QCOMPARE(texto(t), filas);
        QCOMPARE(t.resultado(), resultado);
    }

    /// Every row against exact arithmetic, up to the bound of each algorithm.
    void propiedades_data() { filasDeTexto<bool>(uR"(standard | no || reduced | yes)"_s); }
    void propiedades()
    {
        const auto algoritmo = estaFila<bool>() ? Reducidos : Estandar;
        const std::int64_t mayor = mayorNumero(algoritmo).entero();
        Muestras muestras(2);
        for (int i = 0; i < 5000; ++i) {
            const std::int64_t a = i % 3 == 0 ? muestras.extremo(mayor) : muestras.natural(mayor);
            const std::int64_t b = i % 6 == 0 ? muestras.extremo(mayor) : muestras.natural(mayor);
            comprueba(i % 7 == 0 && b > 0 ? -a : a, b, algoritmo);
            QVERIFY2(!QTest::currentTestFailed(), qPrintable(u"%1 and %2"_s.arg(a).arg(b)));
        }
    }

    /// Just below a multiple of the divisor a rounded quotient would be one too large.
    void cocientesAlBordeDeLaExactitud()
    {
        Muestras muestras(3);
        for (int i = 0; i < 20'000; ++i) {
            const std::int64_t d = 1 + muestras.natural() / 2;
            const std::int64_t q = std::max<std::int64_t>(1, Moneda::MaximoEntero / d - i % 7);
            const std::int64_t multiplo = q * d;
            for (const std::int64_t D : {multiplo - 1, multiplo}) {
                const DivisionEuclides primera = tabla(D, d, Estandar).divisiones().constFirst();
                QCOMPARE(primera.cociente, Moneda::deEntero(D / d));
                QCOMPARE(primera.resto, Moneda::deEntero(D % d));
            }
        }
    }

    void cotas()
    {
        QCOMPARE(mayorNumero(Estandar).texto(), u"922337203685477"_s);
        QCOMPARE(mayorNumero(Reducidos).texto(), u"184467440737095,4"_s);
    }

    /// The pairs whose uncorrected coefficients grow fastest: they pass the fixed-point numbers and
    /// must stay exact. The second bound is that of a number left over from the standard algorithm.
    void coeficientesSinCorregir()
    {
        std::int64_t anterior = 1, numero = 3;
        while (numero <= Moneda::MaximoEntero) {
            comprueba(numero, anterior, Reducidos);
            const std::int64_t siguiente = 3 * numero - anterior;
            anterior = std::exchange(numero, siguiente);
        }
        const TablaEuclides f60 = tabla(1548008755920, 591286729879, Reducidos);
        QCOMPARE(qint64(f60.divisiones().constLast().coef2), qint64(-1021881407041800));
        comprueba(Moneda::MaximoEntero, mayorNumero(Reducidos).entero(), Reducidos);
        comprueba(Moneda::MaximoEntero, Moneda::MaximoEntero - 1, Reducidos);
        comprueba(-Moneda::MaximoEntero, 46, Estandar);
    }

private:
    static void comprueba(std::int64_t a, std::int64_t b, AlgoritmoEuclides algoritmo)
    {
        const TablaEuclides t = tabla(a, b, algoritmo);
        Exacto D = a, d = b, u0 = 1, v0 = 0, u1 = 0, v1 = 1;
        for (const DivisionEuclides &fila : t.divisiones()) {
            const Exacto q = exacto(fila.cociente), r = exacto(fila.resto);
            QVERIFY(exacto(fila.dividendo) == D && exacto(fila.divisor) == d);
            QVERIFY(D == q * d + r);
            if (algoritmo == Estandar)
                QVERIFY(r >= 0 && r < d);
            else
                QVERIFY(2 * r <= d && 2 * r > -d);
            const Exacto u2 = u0 - q * u1, v2 = v0 - q * v1;
            QVERIFY(fila.coef1 == u2 && fila.coef2 == v2);
            if (algoritmo == Estandar)
                QVERIFY(u2 * a + v2 * b == r);
            D = std::exchange(d, r < 0 ? -r : r);
            u0 = std::exchange(u1, u2);
            v0 = std::exchange(v1, v2);
        }
        QVERIFY(d == 0 && D == std::gcd(a, b));
        QVERIFY(exacto(t.mcd()) == D);
    }
};

QTEST_GUILESS_MAIN(TestTablaEuclides)
#include "tst_TablaEuclides.moc"
