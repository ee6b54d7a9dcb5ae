// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/fibonacci/CalculoFibonacci.h"
#include "lessons/fibonacci/CuestionesFibonacci.h"
#include "lessons/fibonacci/IdentidadesFibonacci.h"
#include "lessons/fibonacci/RazonAurea.h"
#include "lessons/fibonacci/Zeckendorf.h"
#include "tests/shell/support/Entorno.h"

#include <cmath>
#include <numeric>

/// The logic of the lesson on the Fibonacci numbers.
class TestFibonacci : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Entorno::limpia(); }

    /// The methods on numbers are tested with the library; here, that each is the one it says, what
    /// it costs, and the border of the definition between what is done at one go and what yields.
    void metodos()
    {
        using Metodo = MetodoFibonacci;
        const std::tuple<Metodo, int, Esfuerzo> casos[] = {
            // 2 F(n+1) - 1 calls, F(n+1) - 1 additions.
            {Metodo::Definicion, 0, {1, 0, 0}},
            {Metodo::Definicion, 1, {1, 0, 0}},
            {Metodo::Definicion, 2, {3, 1, 0}},
            {Metodo::Definicion, 24, {150'049, 75'024, 0}},
            {Metodo::Definicion, 25, {242'785, 121'392, 0}},
            {Metodo::Definicion, 27, {635'621, 317'810, 0}},
            {Metodo::Iteracion, 20, {0, 19, 0}},
            {Metodo::Iteracion, cotaDe(Metodo::Iteracion), {0, 117'591, 0}},
            // 20 is 10100 in binary: five steps, two of them with one addition more.
            {Metodo::Duplicacion, 20, {0, 17, 15}}};
        for (const auto &[metodo, n, esfuerzo] : casos) {
            const FibonacciMedido medido = CalculoFibonacci().calcula(metodo, n, {}).completa();
            QCOMPARE(medido.valor, Evalua(u"fib(%1)"_s.arg(n)));
            QCOMPARE(medido.esfuerzo, esfuerzo);
            QVERIFY(medido.nanosegundos > 0);
        }
    }

    /// The same for a small number and for a large one: the recursion, cold or warm, takes less
    /// than a microsecond for F(2), and as numbers grow the additions of the iteration take far
    /// longer.
    void losTiemposSonLosDeLosNumeros()
    {
        const auto tarda = [](MetodoFibonacci metodo, int n) {
            return CalculoFibonacci().calcula(metodo, n, {}).completa().nanosegundos;
        };
        QVERIFY(tarda(MetodoFibonacci::Definicion, 2) < 1'000);
        const double iteracion = tarda(MetodoFibonacci::Iteracion, 20'000);
        QVERIFY(iteracion > 10 * tarda(MetodoFibonacci::Duplicacion, 20'000));
    }

    void unCalculoDetenido()
    {
        const auto parada = std::make_shared<Parada>();
        const Billete billete(parada, nullptr);
        parada->detener();
        for (const auto metodo : {MetodoFibonacci::Definicion, MetodoFibonacci::Iteracion}) {
            CalculoFibonacci calculo;
            QCOMPARE(calculo.calcula(metodo, cotaDe(metodo), billete).completa().valor, QString());
        }
    }

    void cocientes()
    {
        const QList<CocienteFibonacci> lista = cocientesFibonacci(MaximoDeCocientes);
        QCOMPARE(lista.size(), MaximoDeCocientes);
        const double phi = (1 + std::sqrt(5.0)) / 2;
        for (const CocienteFibonacci &c : lista.first(12)) {
            QCOMPARE(c.f, Evalua(u"fib(%1)"_s.arg(c.n)));
            const double cociente = c.siguiente.toDouble() / c.f.toDouble();
            QCOMPARE(c.porExceso(), cociente > phi);
            QVERIFY(std::abs(std::pow(10.0, c.logError) - std::abs(cociente - phi)) < 1e-14);
        }
        QVERIFY(lista.at(4).cociente.startsWith(u"1,6"_s));
        QCOMPARE(lista.last().siguiente, Evalua(u"fib(501)"_s));
        QVERIFY(std::isfinite(lista.last().logError));
    }

    void numeroAureoConDecimales()
    {
        QCOMPARE(numeroAureo(20), u"1,61803398874989484820"_s);
        QCOMPARE(numeroAureo(1000).size(), 1002);
    }

    void textoDePotencias()
    {
        const std::pair<double, QString> casos[] = {{4.73e-5, u"4,73 · 10⁻⁵"_s},
                                                    {9.999e-3, u"1,00 · 10⁻²"_s}, // rounds up
                                                    {1e-12, u"1,00 · 10⁻¹²"_s}};
        for (const auto &[valor, texto] : casos)
            QCOMPARE(textoDePotencia(std::log10(valor)), texto);
    }

    /// What defines the representation: summands of the sequence, no neighbours, the right sum.
    void zeckendorf()
    {
        for (const QString &n : {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"88"_s, u"89"_s, u"90"_s,
                                 u"100"_s, u"832039"_s, u'1' + QString(200, u'0')}) {
            const QList<PasoZeckendorf> pasos = representacionZeckendorf(n);
            QString resto = n;
            int indice = std::numeric_limits<int>::max();
            for (const PasoZeckendorf &paso : pasos) {
                QCOMPARE(paso.resto, resto);
                QCOMPARE(paso.sumando, Evalua(u"fib(%1)"_s.arg(paso.indice)));
                QCOMPARE(paso.queda, Evalua(u"%1-%2"_s.arg(resto, paso.sumando)));
                QVERIFY(paso.indice >= 2 && indice - paso.indice > 1);
                indice = paso.indice;
                resto = paso.queda;
            }
            QCOMPARE(resto, u"0"_s);
        }
    }

    void codigo()
    {
        QCOMPARE(codigoZeckendorf(representacionZeckendorf(u"100"_s)), u"1000010100"_s);
        QCOMPARE(codigoZeckendorf(representacionZeckendorf(u"1"_s)), u"1"_s);
    }

    void juiciosDeZeckendorf()
    {
        const std::pair<FalloZeckendorf, QString> casos[] = {
            {FalloZeckendorf::Ninguno, u"89 + 8 + 3|3+89+8|fib(11) + 2^3 + fib(4)"_s},
            {FalloZeckendorf::Consecutivos, u"55 + 34 + 8 + 3|89 + 8 + 2 + 1|89 + 8 + 1 + 1 + 1"_s},
            {FalloZeckendorf::OtraSuma, u"89 + 8"_s},
            {FalloZeckendorf::NoEsFibonacci, u"90 + 10|144 + -44|89 + 13-2"_s},
            {FalloZeckendorf::Cero, u"89 + 8 + 3 + 0|0"_s},
            {FalloZeckendorf::NoEsSuma, u"89 + 8 + 6/4|89 + + 3|ochenta|99999999999"_s}};
        for (const auto &[fallo, respuestas] : casos) {
            for (const QString &respuesta : respuestas.split(u'|'))
                QCOMPARE(juzgaZeckendorf(respuesta, 100), fallo);
        }
    }

    void identidades()
    {
        // The least, odd n, even n, a block of the sums, the largest.
        for (const auto &[m, n] :
             {std::pair(1, 1), std::pair(12, 17), std::pair(30, 42), std::pair(7, 100),
              std::pair(MaximoDeIdentidades, MaximoDeIdentidades)}) {
            const QList<IdentidadProbada> lista = pruebaIdentidades(m, n);
            QCOMPARE(lista.size(), 5);
            for (const IdentidadProbada &identidad : lista) {
                QVERIFY2(identidad.seCumple(), qPrintable(identidad.nombre));
                QVERIFY(!identidad.izquierda.isEmpty() && identidad.izquierda != TextoError);
            }
        }
    }

    void cuestionDelMcd()
    {
        const Cuestion cuestion = cuestionMcd(48, 60);
        QVERIFY(cuestion.enunciado.contains(u"F(48) y F(60)"_s));
        QVERIFY(cuestion.juzga(u"144"_s).acertada);
        QVERIFY(cuestion.juzga(u"fib(12)"_s).acertada);
        QCOMPARE(cuestion.juzga(u"144"_s).palabra,
                 u"¡Correcto! Es F(12) = 144, porque mcd(48, 60) = 12."_s);
        const Juicio losIndices = cuestion.juzga(u"12"_s);
        QVERIFY(!losIndices.acertada && losIndices.palabra.contains(u"índices"_s));
        for (const QString &mala : {u"145"_s, u"12+"_s, u"1/0"_s, u"144/5"_s})
            QVERIFY2(!cuestion.juzga(mala).acertada, qPrintable(mala));
    }

    void cuestionesSorteadas()
    {
        QSet<QString> vistas;
        for (int i = 0; i < 50; ++i) {
            const Cuestion suma = sorteaZeckendorf();
            vistas << suma.enunciado;
            static const QRegularExpression numero(u"\\d+"_s);
            const QString n = numero.match(suma.enunciado).captured();
            QVERIFY2(!suma.juzga(n).acertada, qPrintable(suma.enunciado));
            const Cuestion cuestion = sorteaMcd();
            vistas << cuestion.enunciado;
            static const QRegularExpression indice(u"F\\((\\d+)\\) y F\\((\\d+)\\)"_s);
            const auto hallado = indice.match(cuestion.enunciado);
            QVERIFY(hallado.hasMatch());
            const int d = std::gcd(hallado.captured(1).toInt(), hallado.captured(2).toInt());
            QVERIFY2(cuestion.juzga(u"F(%1)"_s.arg(d)).acertada, qPrintable(cuestion.enunciado));
            QVERIFY(
                !cuestion.juzga(u"mcd(F(%1);F(%2))"_s.arg(hallado.captured(1), hallado.captured(2)))
                     .juzgada);
        }
        QVERIFY(vistas.size() > 60);
    }
};

NUMORA_TEST_MAIN(TestFibonacci)
#include "tst_Fibonacci.moc"
