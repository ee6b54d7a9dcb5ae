// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/modular/DibujoDeEstados.h"
#include "lessons/recursion/modular/ModeloValores.h"
#include "lessons/recursion/modular/PasosModulares.h"
#include "tests/Tabla.h"
#include "tests/shell/support/RevisorDePasos.h"

#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace {

DefinicionRecurrente definicion(qint64 alfa, qint64 beta, qint64 f1, qint64 f2)
{
    return {Moneda::deEntero(alfa), Moneda::deEntero(beta), Moneda::deEntero(f1),
            Moneda::deEntero(f2)};
}

} // namespace

/// The steps of a sequence modulo m, and the drawing of its states.
class tst_PasosModulares : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sucesiones();
    void elDibujo_data();
    void elDibujo();
};

/// The values are computed by the test from the numbers as they were given.
void tst_PasosModulares::sucesiones()
{
    RevisorDeFormulas revisor;
    QList<mpz_class> valores;
    revisor.agrega(u"f"_s, [&](const auto &n) {
        return mpq_class(valores.at(n.front().get_num().get_si() - 1));
    });
    revisaAlAzar(revisor, [&](QRandomGenerator &azar) {
        const int m = azar.bounded(1, azar.bounded(4) == 0 ? 32000 : 40);
        const auto coeficiente = [&] { return azar.bounded(-100, 100); };
        const DefinicionRecurrente d =
            definicion(coeficiente(), coeficiente(), coeficiente(), coeficiente());
        const auto resto = [m](const mpz_class &v) { return mpz_class((v % m + m) % m); };
        valores = {resto(static_cast<int>(d.f1.entero())), resto(static_cast<int>(d.f2.entero()))};
        while (valores.size() < SucesionModular::NumValores) {
            const auto &uno = valores.last();
            const auto &dos = valores.at(valores.size() - 2);
            valores << resto(int(d.alfa.entero()) * uno + int(d.beta.entero()) * dos);
        }
        return pasosDeSucesion(d, SucesionModular(d, m));
    });
}

void tst_PasosModulares::elDibujo_data()
{
    // α, β, m, steps, states that are drawn
    filasDeTexto<int, int, int, int, int>(uR"(
        a circle of 60                | 1 | 1 | 10   | 62  | 60
        a circle of 24                | 1 | 1 | 6    | 26  | 24
        a tail of 6 and a circle of 1 | 2 | 0 | 32   | 9   | 7
        one state                     | 1 | 1 | 1    | 3   | 1
        more than 60                  | 1 | 1 | 30   | 122 | 0
        no pair comes back            | 1 | 1 | 1000 | 250 | 0)"_s);
}

/// Each state is an ellipse of its own; and the pair that comes back is marked in the values.
void tst_PasosModulares::elDibujo()
{
    const auto [alfa, beta, modulo, pasos, estados] = estaFila<int, int, int, int, int>();
    const DefinicionRecurrente d = definicion(alfa, beta, 1, 1);
    const SucesionModular sucesion(d, modulo);
    const Pasos hechos = pasosDeSucesion(d, sucesion);
    QCOMPARE(hechos.cuantos(), pasos);
    const Paso ultimo = hechos.paso(hechos.cuantos() - 1);
    QSet<std::pair<int, int>> lugares;
    for (const Figura &figura : ultimo.lamina.figuras()) {
        if (figura.clase == Figura::Elipse)
            lugares.insert({qRound(figura.lugar.x() * 100), qRound(figura.lugar.y() * 100)});
    }
    QCOMPARE(lugares.size(), estados);
    ModeloValores modelo;
    modelo.pon(sucesion);
    int marcadas = 0;
    for (int fila = 0; fila < modelo.rowCount(); ++fila)
        marcadas += modelo.index(fila, 0).data(ModeloValores::PapelDeMarca).toBool() ? 1 : 0;
    const auto periodo = sucesion.periodo();
    QCOMPARE(marcadas, !periodo ? 0 : periodo->longitud == 1 ? 3 : 4);
}

QTEST_GUILESS_MAIN(tst_PasosModulares)
#include "tst_PasosModulares.moc"
