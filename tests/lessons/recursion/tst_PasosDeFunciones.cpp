// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/recursion/functions/Capicua.h"
#include "lessons/recursion/functions/PasosDeAck.h"
#include "lessons/recursion/functions/PasosDeCapicua.h"
#include "lessons/recursion/functions/PasosDeGranizo.h"
#include "lessons/recursion/functions/PilaDeAck.h"
#include "tests/Tabla.h"
#include "tests/shell/support/RevisorDePasos.h"

using namespace Qt::Literals::StringLiterals;

/// The steps of the three classical functions.
class tst_PasosDeFunciones : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ackermann();
    void laPilaHaceLasLlamadasDeLaHerramienta_data();
    void laPilaHaceLasLlamadasDeLaHerramienta();
    void granizo();
    void planeos_data();
    void planeos();
    void capicuas();
    void loQueHaceUnAcarreo_data();
    void loQueHaceUnAcarreo();
};

/// Ack(m, n) in its closed forms for m up to 3.
void tst_PasosDeFunciones::ackermann()
{
    RevisorDeFormulas revisor;
    revisor.agrega(u"Ack"_s, [](const auto &a) {
        const mpz_class n = a[1].get_num();
        const auto m = a[0].get_num().get_si();
        if (m < 2)
            return mpq_class(n + m + 1);
        if (m == 2)
            return mpq_class(2 * n + 3);
        mpz_class potencia;
        mpz_ui_pow_ui(potencia.get_mpz_t(), 2, static_cast<unsigned>(n.get_ui()) + 3);
        return mpq_class(potencia - 3);
    });
    revisaAlAzar(revisor, [](QRandomGenerator &azar) {
        const int m = azar.bounded(4);
        return pasosDeAck({m, azar.bounded(m == 3 ? 4 : 12)}, 5000);
    });
}

void tst_PasosDeFunciones::laPilaHaceLasLlamadasDeLaHerramienta_data()
{
    filasDeTexto<int, int, int, int>(uR"(
        2, 3               | 2 | 3 | 5000 | %1
        a base case        | 0 | 4 | 5000 | %2
        3, 4               | 3 | 4 | 5000 | %1
        beyond the cut-off | 3 | 4 | 60   | %3
        beyond at once     | 2 | 9 | 8    | %3
        too long to show   | 3 | 9 | 5000 | %4)"_s.arg(PilaDeAck::Devuelve)
                                         .arg(PilaDeAck::Base)
                                         .arg(PilaDeAck::Abandonada)
                                         .arg(PilaDeAck::Cortada));
}

void tst_PasosDeFunciones::laPilaHaceLasLlamadasDeLaHerramienta()
{
    const auto [m, n, corte, fin] = estaFila<int, int, int, int>();
    const PilaDeAck pila({m, n}, corte);
    const auto &sucesos = pila.sucesos();
    QCOMPARE(int(sucesos.back().clase), fin);
    const bool acabada =
        sucesos.back().clase == PilaDeAck::Devuelve || sucesos.back().clase == PilaDeAck::Base;
    QCOMPARE(pila.pila(sucesos.size() - 1).empty(), acabada || sucesos.size() == 1);
    if (!acabada)
        return;
    const auto memoria = std::make_shared<MemoriaAck>(1, 1);
    Ack ack(memoria, corte, {});
    QCOMPARE(ack.calcula(m, n).completa(), sucesos.back().valor);
    const auto llamadas = std::count_if(sucesos.begin(), sucesos.end(), [](const auto &s) {
        return s.clase == PilaDeAck::Espera || s.clase == PilaDeAck::Base ||
               s.clase == PilaDeAck::Recordada;
    });
    QCOMPARE(std::int64_t{llamadas}, ack.numLlamadas());
}

void tst_PasosDeFunciones::granizo()
{
    RevisorDeFormulas revisor;
    revisaAlAzar(revisor, [&](QRandomGenerator &azar) {
        QString inicio = QString::number(azar.bounded(2, azar.bounded(2) == 0 ? 1000 : 2000000000));
        if (azar.bounded(10) == 0)
            inicio = inicio.repeated(azar.bounded(1, 8));
        else if (azar.bounded(10) == 0)
            inicio.prepend(u'-');
        revisor.da(u"h_0"_s, mpq_class(inicio.toStdString()));
        return pasosDeGranizo(inicio, azar.bounded(1, 60));
    });
}

void tst_PasosDeFunciones::planeos_data()
{
    filasDeTexto<QString, int, QString>(uR"(
        even           | 6  | 8   | es el del paso 1:
        7              | 7  | 16  | es el del paso 11:
        27             | 27 | 111 | es el del paso 96:
        1 never falls  | 1  | 3   | Hasta el paso 3 ningún
        stopped before | 27 | 95  | Hasta el paso 95 ningún
        one step       | 27 | 1   | Hasta el paso 1 ningún)"_s);
}

void tst_PasosDeFunciones::planeos()
{
    const auto [inicio, pasos, frase] = estaFila<QString, int, QString>();
    const Pasos hechos = pasosDeGranizo(inicio, pasos);
    QCOMPARE(hechos.cuantos(), pasos + 2);
    QVERIFY2(hechos.paso(1).frase.contains(frase), qPrintable(hechos.paso(1).frase));
    const QString ultimo = hechos.paso(hechos.cuantos() - 1).formulas.first().escrita();
    // Backwards as well: the values are computed again.
    QCOMPARE(hechos.paso(2).frase.section(u' ', 0, 0), inicio);
    QCOMPARE(hechos.paso(hechos.cuantos() - 1).formulas.first().escrita(), ultimo);
}

void tst_PasosDeFunciones::capicuas()
{
    RevisorDeFormulas revisor;
    revisaAlAzar(revisor, [&](QRandomGenerator &azar) {
        revisor.olvida();
        QStringList numeros = {
            QString::number(azar.bounded(1, azar.bounded(2) == 0 ? 1000 : 2000000000))};
        while (numeros.size() < 6 && numeros.last() != Inverso(numeros.last())) {
            QString suma = numeros.last() + u'+' + Inverso(numeros.last());
            numeros << Evalua(suma);
        }
        return pasosDeCapicua(numeros, numeros.last() == Inverso(numeros.last()));
    });
}

void tst_PasosDeFunciones::loQueHaceUnAcarreo_data()
{
    filasDeTexto<QString, QString, QString>(uR"(
        none            | 12  | 33  | Sin acarreos
        one side only   | 190 | 281 | Las columnas 1 y 3
        a digit more    | 56  | 121 | Las columnas 1 y 2
        a single column | 5   | 10  | A columnas opuestas)"_s);
}

void tst_PasosDeFunciones::loQueHaceUnAcarreo()
{
    const auto [numero, suma, regla] = estaFila<QString, QString, QString>();
    const Paso paso = pasosDeCapicua({numero, suma}, false).paso(0);
    QVERIFY2(paso.regla.startsWith(regla), qPrintable(paso.regla));
    QVERIFY(!paso.lamina.vacia());
    QCOMPARE(pasosDeCapicua({numero, u"1/2"_s}, false).cuantos(), 1);
}

QTEST_GUILESS_MAIN(tst_PasosDeFunciones)
#include "tst_PasosDeFunciones.moc"
