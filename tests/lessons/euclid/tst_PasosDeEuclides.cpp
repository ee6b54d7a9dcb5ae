// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/euclid/HuecosDeEuclides.h"
#include "lessons/euclid/PasosDeEcuacion.h"
#include "lessons/euclid/PasosDeEuclides.h"
#include "lessons/euclid/RectanguloDeEuclides.h"
#include "tests/Sorteos.h"
#include "tests/lessons/euclid/Muestras.h"
#include "tests/shell/support/RevisorDeFormulas.h"

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

/// The steps of the lesson's table, and the table to fill in.
class TestPasosDeEuclides : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { IniciaBignum(100); }

    /// Every formula holds, and the last one is the identity that the table shows.
    void todoLoQueSeDiceEsCierto()
    {
        Muestras muestras(16);
        RevisorDeFormulas revisor;
        for (int vez = 0; vez < Sorteos; ++vez) {
            const auto algoritmo = vez % 2 ? Reducidos : Estandar;
            const std::int64_t mayor = vez % 8 == 0 || vez % 51 == 0 || vez % 70 == 0
                                           ? mayorNumero(algoritmo).entero()
                                           : 1'000'000;
            std::int64_t a = vez % 51 == 0 ? muestras.extremo(mayor) : muestras.natural(mayor);
            const std::int64_t b =
                vez % 70 == 0 ? muestras.extremo(mayor) : muestras.natural(mayor);
            a = vez % 10 == 3 ? -a : a;
            const TablaEuclides tabla = deNumeros(a, b, algoritmo);
            const Pasos pasos = pasosDeEuclides(tabla);
            QCOMPARE(pasos.vacios(), b == 0);
            const int antes = revisor.comparadas();
            const QString falta = revisor.revisa(pasos);
            QVERIFY2(falta.isEmpty(), qPrintable(u"%1 %2: "_s.arg(a).arg(b) + falta));
            QVERIFY(b == 0 || revisor.comparadas() >= antes + 4 * tabla.divisiones().size());
            if (const auto fila = tabla.filaDelMcd(); fila && algoritmo == Estandar) {
                const Combinacion c = sustitucionHaciaAtras(tabla).constFirst();
                QCOMPARE(c.x, tabla.divisiones()[*fila].coef1);
                QCOMPARE(c.y, tabla.divisiones()[*fila].coef2);
            }
        }
    }

    /// All squares together, those that stand out taken away again, are as large as the rectangle.
    void losCuadradosCubrenElRectangulo()
    {
        Muestras muestras(17);
        for (int vez = 0; vez < 2000; ++vez) {
            const std::int64_t a = muestras.natural(1000) + 1, b = muestras.natural(1000) + 1;
            const TablaEuclides tabla = deNumeros(a, b, vez % 2 ? Reducidos : Estandar);
            const auto &filas = tabla.divisiones();
            const Lamina lamina = rectanguloDeEuclides(tabla, filas.size() - 1);
            qreal area = 0;
            for (const Figura &figura : lamina.figuras()) {
                const int cual = figura.tono.indice;
                const bool sobra =
                    std::count_if(filas.begin(), filas.begin() + cual,
                                  [](const DivisionEuclides &d) { return d.resto < Moneda(); }) %
                        2 !=
                    0;
                if (figura.rellena)
                    area += (sobra ? -1 : 1) * figura.lugar.width() * figura.lugar.height();
            }
            QCOMPARE(area, qreal(a * b));
        }
        QVERIFY(rectanguloDeEuclides(deNumeros(-5, 3, Estandar), 0).vacia());
    }

    void huecos()
    {
        TablaConHuecos huecos = huecosDeEuclides(deNumeros(240, 46, Estandar));
        huecos.ocultaTodas();
        QCOMPARE(huecos.pendientes(), 5 * 6 - 2);
        QCOMPARE(huecos.texto(0, 1), u"240"_s);
        using Estado = TablaConHuecos::Estado;
        QCOMPARE(huecos.responde(0, 6, u"0-5*1"_s), Estado::Acertada);
        QCOMPARE(huecos.responde(1, 3, u"5"_s), Estado::Fallada);
        QCOMPARE(huecos.responde(0, 1, u"7"_s), Estado::ALaVista);
        const auto porQue = [&](int fila, int columna) { return huecos.porQue(fila, columna); };
        QVERIFY(porQue(1, 3).contains(u"46 = 4 · 10 + 6"_s));
        QVERIFY(porQue(2, 4).contains(u"10 − 1 · 6 = 4"_s));
        QVERIFY(porQue(2, 6).contains(u"(-5) − 1 · 21 = -26"_s));
        QVERIFY(porQue(0, 5).contains(u"1 − 5 · 0 = 1"_s));
        QVERIFY(porQue(1, 6).contains(u"1 − 4 · (-5) = 21"_s));
        QVERIFY(
            huecosDeEuclides(deNumeros(46, 10, Reducidos)).porQue(0, 3).contains(u"uno mayor"_s));
    }

    /// Every formula holds; as many solutions are told as there are, or that there are none.
    void ecuaciones()
    {
        Muestras muestras(18);
        RevisorDeFormulas revisor;
        for (int vez = 0; vez < Sorteos; ++vez) {
            const std::int64_t mayor = vez % 20 == 0 ? Moneda::MaximoEntero : 60;
            const std::int64_t a = muestras.natural(mayor) + (mayor == 60 ? 1 : 0);
            const std::int64_t b = muestras.natural(mayor) + (mayor == 60 ? 1 : 0);
            const std::int64_t c = muestras.natural(mayor == 60 ? 2000 : mayor);
            const Pasos pasos = deEcuacion(a, b, c);
            revisor.olvida();
            const QString falta = revisor.revisa(pasos);
            QVERIFY2(falta.isEmpty(), qPrintable(u"%1 %2 %3: "_s.arg(a).arg(b).arg(c) + falta));
            if (mayor == 60)
                QCOMPARE(cuenta(pasos), cuentaProbando(a, b, c));
        }
    }

    void ecuacionesDeBorde_data()
    {
        QTest::addColumn<QList<qint64>>("numeros");
        QTest::addColumn<QString>("ultima");
        const auto fila = [](const char *nombre, const QList<qint64> &numeros, const char *ultima) {
            QTest::newRow(nombre) << numeros << QString::fromUtf8(ultima);
        };
        fila("not even negative ones", {5, 10, 3}, "ni siquiera con números negativos");
        fila("negative ones alone", {6, 10, 14}, "aunque con ellos sí las haya");
        fila("a single one", {2, 3, 7}, "una sola solución");
        fila("change 0", {4, 6, 0}, "una sola solución");
        fila("many", {1, 1, 2000}, "Hay 2001 soluciones");
        fila("beyond double precision", {3, 5, Moneda::MaximoEntero}, "coma flotante");
        fila("beyond 32 bits", {1, 2, 900'000'000'000'000}, "k de 32 bits");
        fila("not positive", {0, 2, 5}, "");
    }
    void ecuacionesDeBorde()
    {
        QFETCH(QList<qint64>, numeros);
        QFETCH(QString, ultima);
        const Pasos pasos = deEcuacion(numeros[0], numeros[1], numeros[2]);
        QCOMPARE(pasos.vacios(), ultima.isEmpty());
        const Paso paso = pasos.vacios() ? Paso() : pasos.paso(pasos.cuantos() - 1);
        QVERIFY2(paso.frase.contains(ultima), qPrintable(paso.frase));
    }

private:
    static Pasos deEcuacion(std::int64_t a, std::int64_t b, std::int64_t c)
    {
        return pasosDeEcuacion(Moneda::deEntero(a), Moneda::deEntero(b), Moneda::deEntero(c));
    }
    /// As the last step tells, −1 where there is no solution at all.
    static std::int64_t cuenta(const Pasos &pasos)
    {
        if (pasos.cuantos() == 2)
            return -1;
        const auto relaciones = pasos.paso(6).formulas.constFirst().raiz().partes;
        return relaciones.size() == 2 && relaciones[1].clase == NodoDeFormula::Numero &&
                       pasos.paso(6).frase.startsWith(u"Hay")
                   ? relaciones[1].texto.toLongLong()
                   : 0;
    }
    static std::int64_t cuentaProbando(std::int64_t a, std::int64_t b, std::int64_t c)
    {
        std::int64_t cuantas = 0;
        for (std::int64_t x = 0; a * x <= c; ++x)
            cuantas += (c - a * x) % b == 0 ? 1 : 0;
        return cuantas == 0 && c % std::gcd(a, b) != 0 ? -1 : cuantas;
    }
    static constexpr auto Estandar = AlgoritmoEuclides::Estandar;
    static constexpr auto Reducidos = AlgoritmoEuclides::RestosReducidos;

    static TablaEuclides deNumeros(std::int64_t a, std::int64_t b, AlgoritmoEuclides algoritmo)
    {
        return {Moneda::deEntero(a), Moneda::deEntero(b), algoritmo};
    }
};

QTEST_GUILESS_MAIN(TestPasosDeEuclides)
#include "tst_PasosDeEuclides.moc"
