// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "shell/core/answers/LectorDeRespuestas.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// What is read of an answer, in every form in which one may be written.
class tst_LectorDeRespuestas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { IniciaBignum(50); }
    void cleanupTestCase() { TerminaBignum(); }
    void seLeen_data();
    void seLeen();
    void nuncaSeJuzgaLoQueNoSeEntiende_data();
    void nuncaSeJuzgaLoQueNoSeEntiende();
    void laPreguntaNoEsRespuesta_data();
    void laPreguntaNoEsRespuesta();
    void lasPalabras();
};

namespace {

void formas(const QList<std::tuple<FormaDeRespuesta::Clase, const char *, const char *>> &filas)
{
    QTest::addColumn<int>("clase");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QString>("numeros");
    for (const auto &[clase, texto, numeros] : filas)
        QTest::addRow("%d: %s", clase, texto)
            << static_cast<int>(clase) << QString::fromUtf8(texto) << QString::fromUtf8(numeros);
}

} // namespace

void tst_LectorDeRespuestas::seLeen_data()
{
    using F = FormaDeRespuesta;
    formas({{F::Entero, "5167", "5167"},
            {F::Entero, " 5.167 ", "5167"},
            {F::Entero, "5 167", "5167"},
            {F::Entero, "5\u202f167", "5167"},
            {F::Entero, "1.234.567", "1234567"},
            {F::Entero, "−12", "-12"},
            {F::Entero, "+12", "12"},
            {F::Entero, "2F(18)-1", "5167"},
            {F::Entero, "2 · F(18) − 1", "5167"},
            {F::Entero, "F₁₁", "89"},
            {F::Entero, "fib(11)", "89"},
            {F::Entero, "2³ · 5", "40"},
            {F::Entero, "2^3*5", "40"},
            {F::Entero, "3(4+1)", "15"},
            {F::Entero, "(2+1)(3+1)", "12"},
            {F::Entero, "2¹⁰", "1024"},
            {F::Entero, "φ(9)", "6"},
            {F::Entero, "10 mod 4", "2"},
            {F::Lista, "3, 5, 7", "3 5 7"},
            {F::Lista, "3; 5; 7", "3 5 7"},
            {F::Lista, "3 5 7", "3 5 7"},
            {F::Lista, "3, 5 y 7", "3 5 7"},
            {F::Lista, "{3, 5, 7}", "3 5 7"},
            {F::Lista, "(−3; 5)", "-3 5"},
            {F::Lista, "-3 -5", "-3 -5"},
            {F::Lista, "2^2+1, 3*2", "5 6"},
            {F::Lista, "5.167, 3", "5167 3"},
            {F::Suma, "34 + F(7) + 1", "34 13 1"},
            {F::Suma, "89", "89"},
            {F::Suma, "(1+2)+5", "3 5"},
            {F::Producto, "2^3*5", "2 3 5 1"},
            {F::Producto, "2³ · 5", "2 3 5 1"},
            {F::Producto, "2·2·2·5", "2 3 5 1"},
            {F::Producto, "5 x 2 x 2 x 2", "2 3 5 1"},
            {F::Producto, "2, 2, 2, 5", "2 3 5 1"},
            {F::Producto, "2 2 2 5", "2 3 5 1"},
            {F::Producto, "11 · (2^2)", "2 2 11 1"},
            {F::Solucion, "x = 3 + 5k, y = 2 - 4k", "3 5 2 -4"},
            {F::Solucion, "x=3+5·t; y=2−4·t", "3 5 2 -4"},
            {F::Solucion, "3+5k, 2-4k", "3 5 2 -4"},
            {F::Solucion, "x = 3 - k, y = k", "3 -1 0 1"},
            {F::Solucion, "x = 5k+3, y = 2 - 4 n", "3 5 2 -4"},
            {F::Fraccion, "−7/12", "-7 12"},
            {F::Fraccion, "14 / 24", "14 24"},
            {F::Fraccion, "5", "5 1"},
            {F::Fraccion, "0,5", "5 10"},
            {F::FormulaDeCelda, "3·a1(A1+1)", "3*A1*(A1+1)"},
            {F::FormulaDeCelda, "A1² − 2", "A1^2 - 2"},
            {F::FormulaDeCelda, "mcd(A1;12)", "mcd(A1;12)"}});
}

void tst_LectorDeRespuestas::seLeen()
{
    QFETCH(int, clase);
    QFETCH(QString, texto);
    const auto leida = leeRespuesta(texto, {static_cast<FormaDeRespuesta::Clase>(clase)});
    QVERIFY2(leida.estado == RespuestaLeida::Leida, qPrintable(leida.leo));
    QTEST(leida.numeros.join(u' '), "numeros");
    QVERIFY(leida.leo.startsWith(u"leo "_s));
}

void tst_LectorDeRespuestas::nuncaSeJuzgaLoQueNoSeEntiende_data()
{
    using F = FormaDeRespuesta;
    formas({{F::Entero, "cinco", "cinco"},
            {F::Entero, "5,5", "5,5"},
            {F::Entero, "7/2", "7/2"},
            {F::Entero, "3 5", "3 5"},
            {F::Entero, "(3", "(3"},
            {F::Entero, "10^100000", "10^100000"},
            {F::Lista, "3, a, 5", "a"},
            {F::Suma, "34 + + 1", "«»"},
            {F::Suma, "34 + a", "a"},
            {F::Producto, "2^3 + 5", "2^3 + 5"},
            {F::Producto, "2^a", "2^a"},
            {F::Solucion, "x = 3 + 5k", "x = 3 + 5k"},
            {F::Solucion, "x = y, y = x", "x = y"},
            {F::Fraccion, "siete", "siete"},
            {F::Fraccion, "7/0", "7/0"},
            {F::FormulaDeCelda, "3*B", "B"},
            {F::FormulaDeCelda, "A1+", "A1+"},
            {F::Palabra, "quizá", "quizá"}});
}

void tst_LectorDeRespuestas::nuncaSeJuzgaLoQueNoSeEntiende()
{
    QFETCH(int, clase);
    QFETCH(QString, texto);
    QFETCH(QString, numeros);
    const auto leida =
        leeRespuesta(texto, {static_cast<FormaDeRespuesta::Clase>(clase), {u"sí"_s, u"no"_s}});
    QCOMPARE(leida.estado, RespuestaLeida::NoEntendida);
    QVERIFY2(leida.leo.contains(numeros), qPrintable(leida.leo));
}

void tst_LectorDeRespuestas::laPreguntaNoEsRespuesta_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QString>("preguntada");
    QTest::addColumn<bool>("es");
    const auto fila = [](const char *texto, const char *preguntada, bool es) {
        QTest::newRow(texto) << QString::fromUtf8(texto) << QString::fromUtf8(preguntada) << es;
    };
    fila("fi(1689)", "fi", true);
    fila("φ(1689)", "fi", true);
    fila("phi(1689)+0", "fi", true);
    fila("34^7736 mod 39", "^ mod", true);
    fila("34^7736 % 39", "^ mod", true);
    fila("mcd(F(77);F(55))", "mcd", true);
    fila("GCD(12;18)", "mcd", true);
    fila("fib(11)", "mcd", false);
    fila("3^4", "^ mod", false);
    fila("17 mod 5", "^ mod", false);
}

void tst_LectorDeRespuestas::laPreguntaNoEsRespuesta()
{
    QFETCH(QString, texto);
    QFETCH(QString, preguntada);
    const auto leida = leeRespuesta(texto, {FormaDeRespuesta::Entero, {}, {preguntada}});
    QTEST(leida.estado == RespuestaLeida::EsLaPregunta, "es");
}

void tst_LectorDeRespuestas::lasPalabras()
{
    const FormaDeRespuesta forma{FormaDeRespuesta::Entero, {u"sí"_s, u"ninguna"_s}};
    for (const QString &texto : {u"sí"_s, u" SI "_s, u"Sí."_s})
        QCOMPARE(leeRespuesta(texto, forma).palabra, u"sí"_s);
    QCOMPARE(leeRespuesta(u"3/4-1/6"_s, {FormaDeRespuesta::Fraccion}).estado,
             RespuestaLeida::EsLaPregunta);
    const FormaDeRespuesta ordenes{FormaDeRespuesta::Palabra, {u"n"_s, u"n²"_s, u"2ⁿ"_s, u"n!"_s}};
    for (const QString &texto : {u"n^2"_s, u"n²"_s})
        QCOMPARE(leeRespuesta(texto, ordenes).palabra, u"n²"_s);
    QCOMPARE(leeRespuesta(u"2^n"_s, ordenes).palabra, u"2ⁿ"_s);
    QCOMPARE(leeRespuesta(u"n!"_s, ordenes).palabra, u"n!"_s);
    QCOMPARE(leeRespuesta(u"ninguna"_s, forma).palabra, u"ninguna"_s);
    QCOMPARE(leeRespuesta(u"7"_s, forma).numeros, QStringList{u"7"_s});
    QCOMPARE(leeRespuesta(u"  "_s, forma).estado, RespuestaLeida::Vacia);
    QCOMPARE(leeRespuesta(QString(100000, u'7'), forma).estado, RespuestaLeida::NoEntendida);
}

QTEST_GUILESS_MAIN(tst_LectorDeRespuestas)
#include "tst_LectorDeRespuestas.moc"
