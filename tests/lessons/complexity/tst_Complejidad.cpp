// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/AjusteExponencial.h"
#include "lessons/complexity/ArbolDeLlamadas.h"
#include "lessons/complexity/CuestionesComplejidad.h"
#include "lessons/complexity/FibonacciMedido.h"
#include "lessons/complexity/GeometriaHanoi.h"
#include "lessons/complexity/TorresHanoi.h"
#include "shell/core/MejorDeVarias.h"
#include "tests/Tabla.h"
#include "tests/shell/support/Entorno.h"

#include <algorithm>
#include <cmath>

/// The logic of the lesson on recursion and complexity.
class TestComplejidad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Entorno::limpia(); }

    void medidas_data()
    {
        // F(93) no longer fits 64 bits and must not be formed.
        filasDeTexto<int, qint64, qint64, qint64, qint64>(uR"(
            0 | 0 | 1 | 1 | 0 || 1 | 1 | 1 | 1 | 0 || 2 | 1 | 3 | 3 | 1
            20 | 6765 | 21891 | 39 | 19 || 25 | 75025 | 242785 | 49 | 24
            92 | 7540113804746346429 | 0 | 183 | 91)"_s);
    }
    void medidas()
    {
        const auto [n, valor, llamadas, conMemoria, sumas] =
            estaFila<int, qint64, qint64, qint64, qint64>();
        MedidasDeFibonacci medidas{{}, mideConMemoria(n), mideIterativa(n)};
        if (llamadas > 0)
            medidas = *mideFibonacci(n, {}).completa();
        QCOMPARE(medidas.recursiva.pasos, llamadas);
        QCOMPARE(medidas.conMemoria.pasos, conMemoria);
        QCOMPARE(medidas.iterativa.pasos, sumas);
        for (const Medida &m : {medidas.conMemoria, medidas.iterativa}) {
            QCOMPARE(m.valor, valor);
            QVERIFY(m.nanosegundos > 0);
        }
    }

    void unaMedidaSeDetiene()
    {
        const auto parada = std::make_shared<Parada>();
        const Billete billete(parada, nullptr);
        parada->detener();
        QVERIFY(!mideFibonacci(60, billete).completa());
    }

    /// What is shorter than a tick of the clock is timed many times over; of what is not, the
    /// fastest of three turns counts.
    void elMejorDeVariosTurnos()
    {
        using namespace std::chrono_literals;
        MejorDeVarias corta;
        while (corta.veces() < 64)
            corta.anota(corta.veces() * 1us);
        QVERIFY(!corta.basta());
        for (int i = 0; i < 100 && !corta.basta(); ++i)
            corta.anota(256us - i * 1us);
        QVERIFY(corta.basta());
        QCOMPARE(corta.veces(), 64);
        QVERIFY(corta.nanosegundos() < 4000 && corta.nanosegundos() > 3000);
        MejorDeVarias larga;
        for (const auto turno : {9ms, 8ms, 30ms}) {
            QVERIFY(!larga.basta());
            larga.anota(turno);
        }
        QVERIFY(larga.basta());
        QCOMPARE(larga.nanosegundos(), 8e6);
        MejorDeVarias unica;
        unica.anota(2s);
        QVERIFY(unica.basta());
    }

    void ajuste()
    {
        QList<QPointF> puntos;
        for (int n = 5; n <= 30; ++n)
            puntos << QPointF(n, 2.5 * std::pow(1.618, n));
        const auto exacto = ajustaExponencial(puntos);
        QVERIFY(exacto.has_value());
        QVERIFY(std::abs(exacto->base - 1.618) < 1e-9);
        QVERIFY(std::abs(exacto->factor - 2.5) < 1e-6);
        QVERIFY(std::abs(exacto->r2 - 1) < 1e-9);
        QVERIFY(std::abs(exacto->valor(7) - puntos.at(2).y()) < 1e-6);
        puntos[10].ry() *= 3;
        const auto torcido = ajustaExponencial(puntos);
        QVERIFY(torcido->r2 < 0.999 && torcido->r2 > 0.9);
        QVERIFY(!ajustaExponencial(puntos.first(2)));
        const auto llano = ajustaExponencial({{1, 1}, {2, 1}, {3, 1}});
        QVERIFY(llano->base == 1 && llano->r2 == 1);
    }

    void arbol_data()
    {
        filasDeTexto<int, bool, int, int, int>(uR"(
            0 | 0 | no | 1 | 0 | 1 || 1 | 1 | no | 1 | 0 | 1 || 5 | 5 | no | 15 | 9 | 5
            10 | 10 | no | 177 | 166 | 10 || 5 with memory | 5 | yes | 9 | 3 | 5
            10 with memory | 10 | yes | 19 | 8 | 10)"_s);
    }
    void arbol()
    {
        const auto [n, memoria, llamadas, repetidas, filas] = estaFila<int, bool, int, int, int>();
        const ArbolDeLlamadas arbol(n, memoria);
        QCOMPARE(static_cast<int>(arbol.llamadas().size()), llamadas);
        QCOMPARE(arbol.repetidas(), repetidas);
        QCOMPARE(arbol.filas(), filas);
        compruebaSitios(arbol);
    }

    void hanoi_data() { filasDeTexto<int>(uR"(1 || 2 || 5 || 12)"_s); }
    void hanoi()
    {
        const int discos = estaFila<int>();
        TorresHanoi torres(discos);
        const QList<int> todos = torres.palo(0);
        QCOMPARE(static_cast<int>(todos.size()), discos);
        while (!torres.terminado()) {
            torres.avanza();
            for (int palo = 0; palo < TorresHanoi::NumPalos; ++palo) {
                const QList<int> &pila = torres.palo(palo);
                QVERIFY(std::is_sorted(pila.crbegin(), pila.crend()));
            }
        }
        QCOMPARE(torres.hechos(), (1 << discos) - 1);
        QCOMPARE(torres.palo(2), todos);
        torres.avanza();
        QCOMPARE(torres.palo(2), todos);
        while (torres.hechos() > 0)
            torres.retrocede();
        torres.retrocede();
        QCOMPARE(torres.palo(0), todos);
    }

    void geometriaDeHanoi()
    {
        const QSizeF tamano(300, 200);
        for (const int discos : {1, 5, TorresHanoi::MaximoDiscos}) {
            const GeometriaHanoi geometria(tamano, discos);
            const QRectF hoja({0, 0}, tamano);
            for (int palo = 0; palo < TorresHanoi::NumPalos; ++palo) {
                QVERIFY(hoja.contains(geometria.palo(palo)));
                for (int altura = 0; altura < discos; ++altura) {
                    const QRectF disco = geometria.disco(discos - altura, palo, altura);
                    QVERIFY(hoja.contains(disco));
                    QCOMPARE(disco.center().x(), geometria.palo(palo).center().x());
                    if (altura == 0) {
                        QCOMPARE(disco.bottom(), geometria.base().top());
                        continue;
                    }
                    const QRectF debajo = geometria.disco(discos - altura + 1, palo, altura - 1);
                    QCOMPARE(disco.bottom(), debajo.top());
                    QVERIFY(disco.width() < debajo.width());
                }
            }
            QVERIFY(geometria.disco(discos, 0, 0).right() < geometria.disco(discos, 1, 0).left());
        }
    }

    void cuestiones_data()
    {
        filasDeTexto<QString, bool, QString>(uR"(
            calls                    | L177         | yes | F(11)
            calls, expression        | L2*fib(11)-1 | yes | 177
            calls without the first  | L176         | no  | primera
            last calls               | L89          | no  | no hacen otras
            calls, other             | L100         | no  | L(n)
            calls, beyond 64 bits    | L10^30       | no  | L(n)
            calls, no number         | Lmuchas      | no  | «muchas»
            moves                    | H2^7         | yes | doble
            all moves                | H1023        | no  | todos
            discs from the other end | H4           | no  | revés
            moves, other             | H127         | no  | mayor
            moves, fraction          | H1/3         | no  | «1/3»)"_s);
    }
    void cuestiones()
    {
        const auto [respuesta, acertada, palabra] = estaFila<QString, bool, QString>();
        const Cuestion cuestion =
            respuesta.startsWith(u'L') ? cuestionLlamadas(10) : cuestionHanoi(10, 3);
        const Juicio juicio = cuestion.juzga(respuesta.sliced(1));
        QCOMPARE(juicio.acertada, acertada);
        QVERIFY2(juicio.palabra.contains(palabra), qPrintable(juicio.palabra));
    }

    /// Both kinds vary, and counting the discs from the wrong end is never right by chance.
    void cuestionesSorteadas()
    {
        QSet<QString> llamadas, torres;
        for (int i = 0; i < 60; ++i) {
            llamadas << sorteaLlamadas().enunciado;
            const Cuestion cuestion = sorteaHanoi();
            torres << cuestion.enunciado;
            static const QRegularExpression datos(u"con (\\d+) discos.*disco (\\d+)"_s);
            const auto hallado = datos.match(cuestion.enunciado);
            const int disco = hallado.captured(2).toInt();
            const QString desdeElMenor = QString::number(disco - 1);
            const QString desdeElMayor = QString::number(hallado.captured(1).toInt() - disco);
            QVERIFY2(cuestion.juzga(u"2^"_s + desdeElMayor).acertada,
                     qPrintable(cuestion.enunciado));
            QVERIFY2(!cuestion.juzga(u"2^"_s + desdeElMenor).acertada,
                     qPrintable(cuestion.enunciado));
        }
        QVERIFY(llamadas.size() > 8);
        QVERIFY(torres.size() > 25);
    }

private:
    /// Calls stand below their callers, in the middle of them, and never on one another.
    static void compruebaSitios(const ArbolDeLlamadas &arbol)
    {
        QSet<std::pair<qreal, qreal>> ocupados;
        const QList<Llamada> &llamadas = arbol.llamadas();
        QList<QList<qreal>> hijos(llamadas.size());
        for (int i = 0; i < llamadas.size(); ++i) {
            const Llamada &llamada = llamadas.at(i);
            const QPointF sitio = llamada.sitio;
            QVERIFY(!ocupados.contains({sitio.x(), sitio.y()}));
            ocupados.insert({sitio.x(), sitio.y()});
            QVERIFY(sitio.x() >= 0 && sitio.x() <= arbol.columnas() - 1);
            QCOMPARE(llamada.padre < 0, i == 0);
            if (llamada.padre < 0)
                continue;
            QVERIFY(llamada.padre < i);
            QCOMPARE(sitio.y(), llamadas.at(llamada.padre).sitio.y() + 1);
            hijos[llamada.padre] << sitio.x();
        }
        for (int i = 0; i < llamadas.size(); ++i) {
            if (hijos.at(i).isEmpty())
                continue;
            QCOMPARE(static_cast<int>(hijos.at(i).size()), 2);
            QCOMPARE(llamadas.at(i).sitio.x(), (hijos.at(i).first() + hijos.at(i).last()) / 2);
        }
    }
};

NUMORA_TEST_MAIN(TestComplejidad)
#include "tst_Complejidad.moc"
