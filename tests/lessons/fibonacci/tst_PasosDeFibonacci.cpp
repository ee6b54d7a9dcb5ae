// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/fibonacci/Embaldosados.h"
#include "lessons/fibonacci/PasosDeFibonacci.h"
#include "lessons/fibonacci/PasosDeIdentidad.h"
#include "lessons/fibonacci/PasosDeZeckendorf.h"
#include "tests/Tabla.h"
#include "tests/shell/support/RevisorDePasos.h"

using namespace Qt::Literals::StringLiterals;

namespace {

mpz_class fibonacci(const mpq_class &n)
{
    mpz_class f;
    mpz_fib_ui(f.get_mpz_t(), static_cast<unsigned>(n.get_num().get_ui()));
    return f;
}

/// Knows F, the calls L of its definition, and the coverings T of a strip, which it counts.
RevisorDeFormulas revisorDeFibonacci()
{
    RevisorDeFormulas revisor;
    revisor.agrega(u"F"_s, [](const auto &n) { return mpq_class(fibonacci(n.front())); });
    revisor.agrega(u"L"_s, [](const auto &n) {
        mpz_class antes = 1;
        mpz_class ahora = 1;
        for (mpz_class k = 1; k < n.front(); ++k) {
            antes = ahora + antes + 1;
            swap(antes, ahora);
        }
        return mpq_class(ahora);
    });
    revisor.agrega(u"T"_s, [](const auto &n) {
        const auto largo = n.front().get_num().get_si();
        return mpq_class(largo <= 10 ? mpz_class(static_cast<unsigned>(
                                           embaldosados(static_cast<int>(largo)).size()))
                                     : fibonacci(n.front() + 1));
    });
    return revisor;
}

int cuantasDestacadas(const Lamina &lamina, int largo)
{
    double area = 0;
    for (const Figura &figura : lamina.figuras())
        area += figura.rellena ? figura.lugar.width() + 0.12 : 0;
    return qRound(area / largo);
}

} // namespace

/// The steps of the lesson on Fibonacci numbers.
class tst_PasosDeFibonacci : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metodos_data();
    void metodos();
    void bordes_data();
    void bordes();
    void cocientes();
    void zeckendorf();
    void identidades_data();
    void identidades();
    void tirasDibujadas_data();
    void tirasDibujadas();
};

void tst_PasosDeFibonacci::metodos_data()
{
    filasDeTexto<int, int>(u"definition | 0 | 50 || iteration | 1 | 1000 || doubling | 2 | 1500"_s);
}

void tst_PasosDeFibonacci::metodos()
{
    const auto [cual, mayor] = estaFila<int, int>();
    const auto metodo = static_cast<MetodoFibonacci>(cual);
    const int hasta = mayor; // a structured binding cannot be captured
    RevisorDeFormulas revisor = revisorDeFibonacci();
    revisaAlAzar(
        revisor,
        [&](QRandomGenerator &azar) {
            return pasosDeFibonacci(metodo, azar.bounded(2, hasta + 1));
        },
        Sorteos, 1);
}

void tst_PasosDeFibonacci::bordes_data()
{
    filasDeTexto<int, int, int>(uR"(
        0            | 2 | 0      | 1
        1            | 0 | 1      | 1
        2 doubled    | 2 | 2      | 4
        a power of 2 | 2 | 1024   | 13
        the largest  | 2 | 117592 | 19
        13 added     | 1 | 13     | 12)"_s);
}

/// The last step gives F(n), whole.
void tst_PasosDeFibonacci::bordes()
{
    const auto [cual, n, cuantos] = estaFila<int, int, int>();
    const auto metodo = static_cast<MetodoFibonacci>(cual);
    const Pasos pasos = pasosDeFibonacci(metodo, n);
    QCOMPARE(pasos.cuantos(), cuantos);
    const QString valor = QString::fromStdString(fibonacci(n).get_str());
    const Paso ultimo = pasos.paso(pasos.cuantos() - 1);
    QVERIFY(ultimo.formulas.first().escrita().endsWith(u"= "_s + valor));
    QCOMPARE(RevisorDeFormulas(revisorDeFibonacci()).revisa(ultimo.formulas.first()), QString());
}

void tst_PasosDeFibonacci::cocientes()
{
    RevisorDeFormulas revisor = revisorDeFibonacci();
    revisaAlAzar(revisor,
                 [](QRandomGenerator &azar) { return pasosDeCocientes(azar.bounded(2, 200)); });
}

void tst_PasosDeFibonacci::zeckendorf()
{
    RevisorDeFormulas revisor = revisorDeFibonacci();
    revisaAlAzar(
        revisor,
        [](QRandomGenerator &azar) {
            QString n = QString::number(azar.bounded(1, azar.bounded(2) == 0 ? 200 : 2000000000));
            return pasosDeZeckendorf(
                representacionZeckendorf(azar.bounded(20) == 0 ? n.repeated(3) : n));
        },
        Sorteos, 1);
}

void tst_PasosDeFibonacci::identidades_data()
{
    filasDeTexto<int>(u"Cassini | 0 || gcd | 1 || indices | 2 || sum | 3 || squares | 4"_s);
}

void tst_PasosDeFibonacci::identidades()
{
    const int fila = estaFila<int>();
    RevisorDeFormulas revisor = revisorDeFibonacci();
    revisaAlAzar(
        revisor,
        [fila](QRandomGenerator &azar) {
            const int mayor = azar.bounded(4) == 0 ? 300 : 12;
            return pasosDeIdentidad(fila, azar.bounded(1, mayor), azar.bounded(1, mayor));
        },
        Sorteos / 5, 1);
}

void tst_PasosDeFibonacci::tirasDibujadas_data()
{
    // row of the table, m, n, strips in full colours at each step
    filasDeTexto<int, int, int, QString>(uR"(
        F(3+4) = 2*5 + 1*3    | 2 | 3 | 4 | 13 10 3 0
        F(1+4) = 1*5 + 0*3    | 2 | 1 | 4 | 5 5 0 0
        F(4+1) = 3*1 + 2*1    | 2 | 4 | 1 | 5 3 2 0
        1 + 1 + 2 + 3 = 8 - 1 | 3 | 1 | 4 | 8 1 1 2 3 1
        too long to draw      | 2 | 4 | 5 | 0 0 0 0)"_s);
}

/// As many strips stand out as the step counts.
void tst_PasosDeFibonacci::tirasDibujadas()
{
    const auto [fila, m, n, esperadas] = estaFila<int, int, int, QString>();
    const Pasos pasos = pasosDeIdentidad(fila, m, n);
    QStringList destacadas;
    for (int i = 0; i < pasos.cuantos(); ++i)
        destacadas << QString::number(
            cuantasDestacadas(pasos.paso(i).lamina, fila == 2 ? m + n - 1 : n + 1));
    QCOMPARE(destacadas.join(u' '), esperadas);
}

QTEST_GUILESS_MAIN(tst_PasosDeFibonacci)
#include "tst_PasosDeFibonacci.moc"
