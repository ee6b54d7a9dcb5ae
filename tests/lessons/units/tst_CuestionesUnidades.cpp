// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/CuestionesUnidades.h"
#include "lessons/units/GrupoUnidades.h"
#include "tests/shell/support/Entorno.h"

#include <QRegularExpression>
#include <QSet>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(Cuestion)

/// The questions: their judgement and what is said of a wrong answer.
class TestCuestionesUnidades : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Entorno::limpia(); }

    void juicios_data()
    {
        QTest::addColumn<Cuestion>("cuestion");
        QTest::addColumn<QString>("respuesta");
        QTest::addColumn<QString>("palabra"); // without a reason, only that it is right
        const QString bien = u"¡Correcto!"_s;
        const auto inverso = [](const char *nombre, const QString &respuesta) -> QTestData & {
            return QTest::newRow(nombre) << cuestionInverso(26, 7) << respuesta;
        };
        inverso("inverse", u"15"_s) << bien;
        inverso("inverse, expression", u"(1+26*4)/7"_s) << bien;
        inverso("inverse, negative", u"-11"_s) << bien + u" Entre 0 y 25 se escribe 15."_s;
        inverso("inverse, far beyond n", u"15+26*10^40"_s)
            << bien + u" Entre 0 y 25 se escribe 15."_s;
        inverso("inverse, wrong", u"11"_s)
            << u"7 · 11 = 77, que es 25 módulo 26, y tendría que ser 1."_s;
        inverso("inverse, long and wrong", u"10^500"_s)
            << u"7 · 22 = 154, que es 24 módulo 26, y tendría que ser 1."_s;
        inverso("no whole number", u"1/7"_s) << u"La respuesta es un número entero."_s;
        inverso("words", u"quince"_s) << u"La respuesta es un número entero."_s;
        const auto orden = [](const char *nombre, const QString &respuesta) -> QTestData & {
            return QTest::newRow(nombre) << cuestionOrden(13, 3) << respuesta;
        };
        orden("order", u"3"_s) << bien;
        orden("order, a multiple", u"12"_s)
            << u"3^12 sí da 1, pero hay un exponente menor que también lo da."_s;
        orden("order, wrong", u"2"_s) << u"3^2 da 9 módulo 13, y tendría que dar 1."_s;
        orden("order, zero", u"0"_s) << u"El orden es un exponente positivo."_s;
        orden("order, negative and long", u"-10^90"_s) << u"El orden es un exponente positivo."_s;
        orden("order, beyond phi", u"3*10^90"_s) << u"Ningún orden pasa de φ(13) = 12."_s;
        const auto raiz = [](const char *nombre, const QString &respuesta) -> QTestData & {
            return QTest::newRow(nombre) << cuestionRaizPrimitiva(14) << respuesta;
        };
        raiz("root", u"5"_s) << bien + u" Hay 2 en total."_s;
        raiz("root, negative", u"-9"_s) << bien + u" Hay 2 en total."_s;
        raiz("root, short order", u"9"_s)
            << u"El orden de 9 es 3: sus potencias son solo 3 de las 6 unidades."_s;
        raiz("root, no unit", u"21"_s) << u"21 no es una unidad: mcd(21, 14) = 7."_s;
        raiz("root, zero", u"0"_s) << u"0 no es una unidad: mcd(0, 14) = 14."_s;
        raiz("root, long and no unit", u"7*10^60+7"_s) << u"7 no es una unidad: mcd(7, 14) = 7."_s;
        const auto fi = [](const char *nombre, const QString &respuesta) -> QTestData & {
            return QTest::newRow(nombre) << cuestionFi(360) << respuesta;
        };
        fi("phi", u"4*6*4"_s) << bien;
        fi("phi as of a prime", u"359"_s)
            << u"φ(n) = n − 1 solo si n es primo, y 360 = 2^3 · 3^2 · 5."_s;
        fi("phi without exponents", u"8"_s)
            << u"Ha tomado cada primo una sola vez, pero 360 = 2^3 · 3^2 · 5 y φ(p^k) = "
               u"p^(k−1)·(p − 1)."_s;
        fi("phi, too small", u"95"_s)
            << u"Es mayor que 95. Tenga en cuenta que 360 = 2^3 · 3^2 · 5."_s;
        fi("phi, too large", u"97"_s)
            << u"Es menor que 97. Tenga en cuenta que 360 = 2^3 · 3^2 · 5."_s;
        for (const QString &imposible : {u"0"_s, u"-10^30"_s, u"360"_s, u"10^30"_s}) {
            fi(qPrintable(u"phi, "_s + imposible), imposible)
                << u"φ(360) cuenta las unidades de Z₃₆₀: está entre 1 y 359."_s;
        }
        const auto potencia = [](const char *nombre, const QString &respuesta) -> QTestData & {
            return QTest::newRow(nombre) << cuestionPotencia(10, 3, 1002) << respuesta;
        };
        potencia("power", u"9"_s) << bien;
        potencia("power, congruent", u"-1"_s)
            << u"Es congruente con la solución, pero un resto está entre 0 y 9."_s;
        potencia("power, wrong", u"7"_s)
            << u"Como φ(10) = 4 y 3 es una unidad, 3^4 da 1: basta calcular 3^2, porque 2 es el "
               u"resto de 1002 entre 4."_s;
    }
    void juicios()
    {
        QFETCH(Cuestion, cuestion);
        QFETCH(QString, respuesta);
        QFETCH(QString, palabra);
        const Juicio juicio = cuestion.juzga(respuesta);
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
        QString texto = enunciado;
        for (QChar &c : texto) {
            if (c >= u'₀' && c <= u'₉')
                c = QChar(static_cast<char16_t>(u'0' + (c.unicode() - u'₀')));
        }
        static const QRegularExpression numero(u"\\d+"_s);
        for (auto hallados = numero.globalMatch(texto); hallados.hasNext();)
            datos << hallados.next().captured().toInt();
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
