// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "lessons/recursion/modular/ModeloValores.h"
#include "lessons/recursion/modular/SucesionModular.h"
#include "lessons/recursion/modular/TextoDeDefinicion.h"
#include "tests/Tabla.h"
#include "tests/shell/support/Entorno.h"

#include <QAbstractItemModelTester>

namespace {

DefinicionRecurrente definicion(qint64 alfa, qint64 beta, qint64 f1, qint64 f2)
{
    return {Moneda::deEntero(alfa), Moneda::deEntero(beta), Moneda::deEntero(f1),
            Moneda::deEntero(f2)};
}

/// The number of the error that an action ends in; 0 when it ends well.
template <typename Accion>
int error(Accion accion)
{
    try {
        accion();
    } catch (const ErrorEjecucion &e) {
        return e.numero();
    }
    return 0;
}

} // namespace

/// Linear recurrences modulo m without a window.
class TestSucesionModular : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    /// D. D. Wall, "Fibonacci Series Modulo m", Amer. Math. Monthly 67 (1960); sequence A001175 of
    /// the On-Line Encyclopedia of Integer Sequences.
    void periodosDePisano()
    {
        constexpr int tabla[] = {
            1,   3,   8,  6,  20,  24,  16,  12,  24,  60,  10,  24,  28,  48,  40,  24,  36,
            24,  18,  60, 16, 30,  48,  24,  100, 84,  72,  48,  14,  120, 30,  48,  40,  36,
            80,  24,  76, 18, 56,  60,  40,  48,  88,  30,  120, 48,  32,  24,  112, 300, 72,
            84,  108, 72, 20, 48,  72,  42,  58,  120, 60,  30,  48,  96,  140, 120, 136, 36,
            48,  240, 70, 24, 148, 228, 200, 18,  80,  168, 78,  120, 216, 120, 168, 48,  180,
            264, 56,  60, 44, 120, 112, 48,  120, 96,  180, 48,  196, 336, 120, 300};
        std::int32_t m = 0;
        for (const int longitud : tabla) {
            const auto periodo = SucesionModular(definicion(1, 1, 1, 1), ++m).periodo();
            const bool cabe = longitud + 1 <= SucesionModular::NumValores - 1;
            QCOMPARE(periodo.has_value(), cabe);
            if (cabe)
                QCOMPARE(*periodo, (PeriodoModular{1, longitud}));
        }
    }

    void periodos_data()
    {
        filasDeTexto<qint64, qint64, qint64, qint64, int, int, int>(uR"(
            one value             | 1               | 1  | 1 | 1 | 1    | 1  | 1
            one value before      | 1               | 2  | 1 | 1 | 12   | 2  | 6
            powers of 2 modulo 12 | 2               | 0  | 1 | 2 | 12   | 3  | 2
            dies out              | 2               | 0  | 1 | 2 | 1024 | 11 | 1
            largest found         | 2               | -1 | 0 | 1 | 248  | 1  | 248
            one too large         | 2               | -1 | 0 | 1 | 249  | 0  | 0
            huge coefficient      | 922337203685477 | 0  | 1 | 7 | 10   | 1  | 4
            all pairs but one     | 2               | 2  | 1 | 1 | 7    | 1  | 48)"_s);
    }
    void periodos()
    {
        const auto [alfa, beta, f1, f2, m, inicio, longitud] =
            estaFila<qint64, qint64, qint64, qint64, int, int, int>();
        const auto periodo = SucesionModular(definicion(alfa, beta, f1, f2), m)
                                 .periodo()
                                 .value_or(PeriodoModular{0, 0});
        QCOMPARE(periodo.inicio, inicio);
        QCOMPARE(periodo.longitud, longitud);
    }

    /// What a period is, looked at directly, for many sequences with and without a start.
    void elPeriodoEsElMenor()
    {
        for (int i = 0; i < 2000; ++i) {
            const int m = 1 + i % 37;
            const SucesionModular s(definicion(i % 11 - 5, i / 11 % 13 - 6, i % 7, i % 5), m);
            const auto periodo = s.periodo();
            if (!periodo)
                continue;
            const auto igual = [&](int a, int b) {
                return s.valor(a) == s.valor(b) && s.valor(a + 1) == s.valor(b + 1);
            };
            const auto [inicio, longitud] = *periodo;
            for (int n = inicio; n + longitud < SucesionModular::NumValores; ++n)
                QVERIFY(igual(n, n + longitud));
            for (int corta = 1; corta < longitud; ++corta)
                QVERIFY(!igual(inicio, inicio + corta));
            QVERIFY(inicio == 1 || !igual(inicio - 1, inicio - 1 + longitud));
        }
    }

    void coeficientesNegativos()
    {
        const SucesionModular s(definicion(-3, 2, -1, 25), 10);
        const QList<int> esperados{9, 5, 3, 1, 3, 3, 7};
        for (int n = 1; n <= esperados.size(); ++n)
            QCOMPARE(s.valor(n), esperados.at(n - 1));
    }

    void elDesbordamiento()
    {
        // With all of them m - 1, the first step is 2 (m - 1)^2.
        const auto calcula = [](std::int32_t m) { SucesionModular(definicion(-1, -1, -1, -1), m); };
        QCOMPARE(error([&] { calcula(32'768); }), 0);
        QCOMPARE(error([&] { calcula(32'769); }), int{ErrorEjecucion::Desbordamiento});
        QCOMPARE(error([&] { calcula(INT_MAX); }), int{ErrorEjecucion::Desbordamiento});
        QCOMPARE(error([] { SucesionModular(definicion(1, 0, 5, 5), INT_MAX); }), 0);
    }

    void moduloCero() { QCOMPARE(SucesionModular(definicion(1, 1, 1, 1), 0).valor(1), 0); }

    /// Bounds of the two kinds of field; only beyond fixed-point numbers there is a box as well.
    void losCampos()
    {
        QCOMPARE(*leeModulo(u"2^31-1"_s), INT_MAX);
        QCOMPARE(*leeModulo(u"100 mod 7"_s), 2);
        QCOMPARE(leeModulo(u"0"_s).razon(), (NoLeido{NoLeido::Menor, u"1"_s}));
        QCOMPARE(leeModulo(u"2^31"_s).razon(), (NoLeido{NoLeido::Mayor, u"2147483647"_s}));
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
        QCOMPARE(leeModulo(u"10^300"_s).razon().cota, u"922337203685477"_s);
        QCOMPARE(Entorno::grabadora().unico().titulo, u"Número demasiado grande"_s);
        QCOMPARE(*leeCoeficiente(u"-922337203685477"_s), Moneda::deEntero(-Moneda::MaximoEntero));
        QCOMPARE(leeCoeficiente(u"-922337203685478"_s).razon().motivo, NoLeido::Menor);
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, leeCoeficiente(u"mod 5"_s));
    }

    void comoSeEscribe()
    {
        QCOMPARE(textoDeDefinicion(definicion(1, 1, 1, 1)),
                 u"f(n) = f(n-1) + f(n-2),  f(1) = 1,  f(2) = 1"_s);
        QCOMPARE(textoDeDefinicion(definicion(-2, -3, 0, -5)),
                 u"f(n) = -2 f(n-1) - 3 f(n-2),  f(1) = 0,  f(2) = -5"_s);
        QCOMPARE(textoDeDefinicion(definicion(-1, -1, 2, 3)),
                 u"f(n) = -f(n-1) - f(n-2),  f(1) = 2,  f(2) = 3"_s);
    }

    void losPrimerosValores()
    {
        const auto escritos = [](const DefinicionRecurrente &definicion) {
            QStringList textos;
            for (const Moneda valor : primerosValores(definicion, 10))
                textos << valor.texto();
            return textos.join(u' ');
        };
        QCOMPARE(escritos(definicion(1, 1, 1, 1)), u"1 1 2 3 5 8 13 21 34 55"_s);
        QCOMPARE(escritos(definicion(2, -3, 0, 1)), u"0 1 2 1 -4 -11 -10 13 56 73"_s);
        // What does not fit is left out, without an error.
        QCOMPARE(escritos(definicion(1'000'000, 0, 1, 1'000)), u"1 1000 1000000000"_s);
    }

    void laTabla()
    {
        ModeloValores modelo;
        const QAbstractItemModelTester probador(&modelo);
        QCOMPARE(modelo.rowCount(), 0);
        modelo.pon(SucesionModular(definicion(1, 1, 1, 1), 10'000));
        QCOMPARE(modelo.rowCount(), 250);
        QCOMPARE(modelo.index(19, 0).data().toString(), u"20"_s);
        QCOMPARE(modelo.index(19, 1).data().toString(), u"6.765"_s);
        QCOMPARE(modelo.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), u"f(n)"_s);
    }
};

NUMORA_TEST_MAIN(TestSucesionModular)
#include "tst_SucesionModular.moc"
