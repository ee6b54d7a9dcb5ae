// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/CuestionesUnidades.h"
#include "lessons/units/GrupoUnidades.h"
#include "tests/Tabla.h"
#include "tests/shell/support/Entorno.h"

#include <numeric>

/// The questions: their judgement and what is said of a wrong answer.
class TestCuestionesUnidades : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Entorno::limpia(); }

    void juicios_data()
    {
        // By its first letter: Inverse of 7 (26), Order of 3 (13), Root (14), Phi (360), poWer.
        filasDeTexto<QString, QString>(uR"(
            inverse | I15 | ¡Correcto! || inverse, expression | I(1+26*4)/7 | ¡Correcto!
            inverse, negative | I-11 | ¡Correcto! Entre 0 y 25 se escribe 15.
            inverse, far beyond n | I15+26*10^40 | ¡Correcto! Entre 0 y 25 se escribe 15.
            inverse, wrong | I11 | 7 · 11 = 77, que es 25 módulo 26, y tendría que ser 1.
            inverse, long and wrong | I10^500 | \
              7 · 22 = 154, que es 24 módulo 26, y tendría que ser 1.
            no whole number | I1/7 | No se ha juzgado: no entiendo «1/7».
            words | Iquince | No se ha juzgado: no entiendo «quince».
            order | O3 | ¡Correcto!
            order, a multiple | O12 | \
              3¹² sí da 1, pero hay un exponente menor que también lo da.
            order, wrong | O2 | 3² da 9 módulo 13, y tendría que dar 1.
            order, zero | O0 | El orden es un exponente positivo.
            order, negative and long | O-10^90 | El orden es un exponente positivo.
            order, beyond phi | O3*10^90 | Ningún orden pasa de φ(13) = 12.
            root | R5 | ¡Correcto! Hay 2 en total.
            root, negative | R-9 | ¡Correcto! Hay 2 en total.
            root, short order | R9 | \
              El orden de 9 es 3: sus potencias son solo 3 de las 6 unidades.
            root, no unit | R21 | 21 no es una unidad: mcd(21, 14) = 7.
            root, zero | R0 | 0 no es una unidad: mcd(0, 14) = 14.
            root, long and no unit | R7*10^60+7 | 7 no es una unidad: mcd(7, 14) = 7.
            phi | P4*6*4 | ¡Correcto!
            phi as of a prime | P359 | \
              φ(n) = n − 1 solo si n es primo, y 360 = 2^3 · 3^2 · 5.
            phi without exponents | P8 | Ha tomado cada primo una sola vez, pero \
              360 = 2^3 · 3^2 · 5 y φ(pᵏ) = pᵏ⁻¹·(p − 1).
            phi, too small | P95 | No es 95. Tenga en cuenta que 360 = 2^3 · 3^2 · 5.
            phi, too large | P97 | No es 97. Tenga en cuenta que 360 = 2^3 · 3^2 · 5.
            P0 | φ(360) cuenta las unidades de Z₃₆₀: está entre 1 y 359.
            P-10^30 | φ(360) cuenta las unidades de Z₃₆₀: está entre 1 y 359.
            P360 | φ(360) cuenta las unidades de Z₃₆₀: está entre 1 y 359.
            P10^30 | φ(360) cuenta las unidades de Z₃₆₀: está entre 1 y 359.
            power | W9 | ¡Correcto!
            power, congruent | W-1 | \
              Es congruente con la solución, pero un resto está entre 0 y 9.
            power, wrong | W7 | Como φ(10) = 4 y 3 es una unidad, 3⁴ da 1: basta calcular \
              3², porque 2 es el resto de 1002 entre 4.)"_s);
    }
    void juicios()
    {
        const auto [respuesta, palabra] = estaFila<QString, QString>();
        const QMap<QChar, Cuestion> cuestiones{{u'I', cuestionInverso(26, 7)},
                                               {u'O', cuestionOrden(13, 3)},
                                               {u'R', cuestionRaizPrimitiva(14)},
                                               {u'P', cuestionFi(360)},
                                               {u'W', cuestionPotencia(10, 3, 1002)}};
        const Juicio juicio = cuestiones[respuesta.front()].juzga(respuesta.sliced(1));
        QCOMPARE(juicio.palabra, palabra);
        QCOMPARE(juicio.acertada, palabra.startsWith(u"¡Correcto!"_s));
    }

    /// Whatever is drawn has a right answer, found here from the text of the question alone, and
    /// all five kinds come.
    void sorteadas()
    {
        QSet<QString> enunciados, clases;
        for (int vez = 0; vez < 150; ++vez) {
            const Cuestion cuestion = vez % 2 == 0 ? sorteaDelGrupo() : sorteaDeEuler();
            enunciados << cuestion.enunciado;
            const auto [clase, solucion] = resuelve(cuestion.enunciado);
            clases << clase;
            QVERIFY2(cuestion.juzga(QString::number(solucion)).acertada,
                     qPrintable(cuestion.enunciado));
            QVERIFY2(solucion != 1 || clase == u"resto"_s, qPrintable(cuestion.enunciado));
            const Juicio otra = cuestion.juzga(QString::number(solucion + 1));
            QVERIFY(otra.acertada ? clase == u"raíz"_s : !otra.palabra.isEmpty());
        }
        QCOMPARE(clases.size(), 5);
        QVERIFY(enunciados.size() > 100);
    }

private:
    /// The kind of a question, by a word of its text, and its answer, by trying.
    static std::pair<QString, int> resuelve(const QString &enunciado)
    {
        QList<int> datos;
        const QString texto = enunciado;
        QChar antes;
        for (const QChar c : texto) {
            // An exponent, which stands higher than its base, is a number of its own.
            const bool sigue = antes.digitValue() >= 0 && antes.isDigit() == c.isDigit();
            if (c.digitValue() >= 0 && sigue)
                datos.back() = datos.back() * 10 + c.digitValue();
            else if (c.digitValue() >= 0)
                datos << c.digitValue();
            antes = c;
        }
        if (texto.contains(u"inverso"_s))
            return {u"inverso"_s, inversoDe(datos[0], datos[1])};
        if (texto.contains(u"orden"_s))
            return {u"orden"_s, ordenDe(datos[0], datos[1])};
        if (texto.contains(u"raíz"_s))
            return {u"raíz"_s, raizDe(datos[0])};
        if (texto.contains(u"resto"_s)) {
            int resto = 1;
            for (int k = 0; k < datos[1]; ++k)
                resto = resto * datos[0] % datos[2];
            return {u"resto"_s, resto};
        }
        return {u"fi"_s, fiDe(datos[0])};
    }
    static int inversoDe(int a, int n)
    {
        int b = 1;
        while (a * b % n != 1)
            ++b;
        return b;
    }
    static int ordenDe(int a, int n)
    {
        int k = 1;
        for (int potencia = a; potencia != 1; ++k)
            potencia = potencia * a % n;
        return k;
    }
    static int fiDe(int n)
    {
        int cuantas = 0;
        for (int a = 1; a <= n; ++a)
            cuantas += std::gcd(a, n) == 1 ? 1 : 0;
        return cuantas;
    }
    static int raizDe(int n)
    {
        int a = 2;
        while (std::gcd(a, n) != 1 || ordenDe(a, n) != fiDe(n))
            ++a;
        return a;
    }
};

NUMORA_TEST_MAIN(TestCuestionesUnidades)
#include "tst_CuestionesUnidades.moc"
