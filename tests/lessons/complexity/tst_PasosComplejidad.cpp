// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/ArbolDeLlamadas.h"
#include "lessons/complexity/PasosDeHanoi.h"
#include "lessons/complexity/PasosDeLlamadas.h"
#include "tests/shell/support/RevisorDePasos.h"

#include <QHash>

using namespace Qt::Literals::StringLiterals;

/// The steps of the lesson on recursion and complexity, and the fewest moves from any position.
class tst_PasosComplejidad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void llamadas();
    void hanoi();
    void loQueFaltaEsLoMenosPosible();
    void reparos();

private:
    static TorresHanoi alAzar(QRandomGenerator &azar);
};

TorresHanoi tst_PasosComplejidad::alAzar(QRandomGenerator &azar)
{
    TorresHanoi torres(azar.bounded(1, TorresHanoi::MaximoDiscos + 1));
    const int intentos = azar.bounded(60);
    for (int i = 0; i < intentos; ++i)
        torres.mueve(azar.bounded(3), azar.bounded(3));
    return torres;
}

/// The calls are counted by making them.
void tst_PasosComplejidad::llamadas()
{
    for (const bool conMemoria : {false, true}) {
        RevisorDeFormulas revisor;
        QHash<int, qint64> cuentas = {{0, 1}, {1, 1}};
        const auto cuenta = [&](int n) {
            for (int k = 2; k <= n; ++k)
                cuentas[k] = 1 + cuentas[k - 1] + (conMemoria ? 1 : cuentas[k - 2]);
            return cuentas[n];
        };
        for (int n = 0; n <= ArbolDeLlamadas::MaximoN; ++n)
            QCOMPARE(cuenta(n), ArbolDeLlamadas(n, conMemoria).llamadas().size());
        revisor.agrega(u"L"_s, [&](const auto &n) {
            return mpq_class(
                std::to_string(cuenta(static_cast<int>(n.front().get_num().get_si()))));
        });
        revisor.agrega(u"F"_s, [](const auto &n) {
            mpz_class f;
            mpz_fib_ui(f.get_mpz_t(), static_cast<unsigned>(n.front().get_num().get_ui()));
            return mpq_class(f);
        });
        revisaAlAzar(
            revisor,
            [conMemoria](QRandomGenerator &azar) {
                return pasosDeLlamadas(azar.bounded(90), conMemoria);
            },
            Sorteos / 2);
    }
}

void tst_PasosComplejidad::hanoi()
{
    RevisorDeFormulas revisor;
    revisor.agrega(u"H"_s, [](const auto &n) {
        int movimientos = 0;
        for (mpz_class k = n.front().get_num(); k > 0; --k)
            movimientos = 2 * movimientos + 1;
        return mpq_class(movimientos);
    });
    revisaAlAzar(
        revisor, [](QRandomGenerator &azar) { return pasosDeHanoi(alAzar(azar)); }, Sorteos, 3);
}

/// Against a search through all positions of five discs.
void tst_PasosComplejidad::loQueFaltaEsLoMenosPosible()
{
    using Posicion = QList<int>; // the pole of each disc, the smallest first
    const auto posicionDe = [](const TorresHanoi &torres) {
        Posicion palos;
        for (int d = 1; d <= torres.discos(); ++d)
            palos << torres.paloDe(d);
        return palos;
    };
    QHash<Posicion, int> distancias = {{Posicion(5, 2), 0}};
    QList<Posicion> frontera = distancias.keys();
    while (!frontera.isEmpty()) {
        const Posicion esta = frontera.takeFirst();
        for (int d = 0; d < 5; ++d) {
            for (int palo = 0; palo < 3; ++palo) {
                Posicion otra = esta;
                otra[d] = palo;
                const auto menores = esta.first(d);
                if (menores.contains(esta[d]) || menores.contains(palo) ||
                    distancias.contains(otra))
                    continue;
                distancias.insert(otra, distancias[esta] + 1);
                frontera << otra;
            }
        }
    }
    QCOMPARE(distancias.size(), 243);
    QRandomGenerator azar(7);
    for (int vez = 0; vez < 300; ++vez) {
        TorresHanoi torres(5);
        for (int i = azar.bounded(200); i > 0; --i)
            torres.mueve(azar.bounded(3), azar.bounded(3));
        QCOMPARE(torres.faltan(), distancias.value(posicionDe(torres)));
        const int antes = torres.faltan();
        torres.avanza();
        QCOMPARE(torres.faltan(), std::max(0, antes - 1));
    }
}

void tst_PasosComplejidad::reparos()
{
    TorresHanoi torres(3);
    QCOMPARE(torres.reparo(1, 0), ReparoHanoi::PaloVacio);
    torres.mueve(0, 2);
    QCOMPARE(torres.reparo(0, 2), ReparoHanoi::DiscoMenor);
    QCOMPARE(torres.reparo(2, 0), ReparoHanoi::Ninguno);
    torres.mueve(0, 2);
    torres.mueve(0, 0);
    torres.mueve(1, 2);
    QCOMPARE(torres.hechos(), 1);
    torres.retrocede();
    QCOMPARE(torres.palo(0), (QList<int>{3, 2, 1}));
}

QTEST_GUILESS_MAIN(tst_PasosComplejidad)
#include "tst_PasosComplejidad.moc"
