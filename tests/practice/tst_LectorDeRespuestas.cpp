// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "shell/core/answers/LectorDeRespuestas.h"
#include "tests/Tabla.h"

#include <QMap>

namespace {

using F = FormaDeRespuesta;

const QMap<QString, F> Formas{
    {u"Entero"_s, {F::Entero, {u"ninguna"_s}, {u"mcd"_s}}},
    {u"Lista"_s, {F::Lista, {u"ninguno"_s}, {u"mcd"_s}}},
    {u"Suma"_s, {F::Suma}},
    {u"Producto"_s, {F::Producto}},
    {u"Solucion"_s, {F::Solucion}},
    {u"Palabra"_s, {F::Palabra, {u"sí"_s, u"no"_s, u"n²"_s, u"2ⁿ"_s, u"n · log n"_s}}},
    {u"Fraccion"_s, {F::Fraccion}},
    {u"FormulaDeCelda"_s, {F::FormulaDeCelda}}};

// What is read (numbers, a word, or why nothing is judged), and the forms in which it may be
// written; ⎵ and ⍽ stand for the no-break space and the narrow one.
const QString Escritos = uR"(
Entero | 5167 | 5167 ¦ 5.167 ¦ 5 167 ¦ 5⍽167 ¦ 5⎵167 ¦ 5'167 ¦ +5167 ¦ (5167) ¦ 2F(18)-1 ¦ 2 · F(18) − 1 \
    ¦ 2F₁₈ − 1 ¦ 2·fib(18)−1 ¦ 5000+167 ¦ 10334/2 ¦ 72²−17 ¦ 72^2-17 ¦ 5·10³ + 167 ¦ 3(1722)+1 ¦ −(−5167) \
    ¦ 15.501/3 ¦ 5167¹ ¦ 5166 + F₁
Entero | -12 | −12 ¦ -12 ¦ - 12 ¦ −3·4 ¦ 3(−4) ¦ (−12)
Entero | 1234567 | 1.234.567 ¦ 1 234 567
Entero | 6 | φ(9) ¦ fi(9) ¦ phi(9)
Entero | 2 | 10 mod 4 ¦ 10 % 4
Entero | ninguna | ninguna ¦ Ninguna. ¦ NINGUNA
Entero | NoEntendida | cinco ¦ 5,5 ¦ 7/2 ¦ 3 5 ¦ (3 ¦ 10^100000 ¦ 5.16.7 ¦ 5167a ¦ 5,167 ¦ 5..167 ¦ 1/0 ¦ = \
    ¦ x=3 ¦ mod 4 ¦ 0.125
Entero | EsLaPregunta | mcd(12;18) ¦ MCD(12; 18) ¦ gcd(12;18)+0 ¦ mcd (12;18)
Lista | 3 5 7 | 3, 5, 7 ¦ 3; 5; 7 ¦ 3 5 7 ¦ 3,5,7 ¦ 3;5;7 ¦ 3, 5 y 7 ¦ 3, 5 and 7 ¦ {3, 5, 7} ¦ (3; 5; 7) \
    ¦ [3, 5, 7] ¦ 3   5   7 ¦ 3, 5 7 ¦ +3, +5, +7 ¦ 2+1, 5, 7 ¦ 3, 2²+1, 7 ¦ F₄, F₅, 7 ¦ F(4), F(5), 7 \
    ¦ 3, 5, 2(3)+1 ¦ 3, 5, (14)/2 ¦ 3 , 5 , 7
Lista | -3 5 | -3, 5 ¦ −3, 5 ¦ (−3; 5) ¦ −3 5 ¦ −3 y 5 ¦ 2−5, 5
Lista | -3 -5 | -3 -5 ¦ −3, −5 ¦ (−3, −5)
Lista | 5167 3 | 5.167, 3 ¦ 5.167; 3 ¦ 5167 3
Lista | ninguno | ninguno ¦ Ninguno.
Lista | 3 5 | 3,, 5 ¦ 3, 5, ¦ 3; 5;
Lista | NoEntendida | 3, a, 5 ¦ , ¦ 3, 5/2 ¦ 3, (5 ¦ tres y cinco
Lista | EsLaPregunta | mcd(3;5), 2
Suma | 34 13 1 | 34 + 13 + 1 ¦ 34+13+1 ¦ 34 + F(7) + 1 ¦ F(9) + F(7) + F(1) ¦ F₉ + F₇ + F₁ ¦ F₉+F₇+1 \
    ¦ fib(9)+13+1 ¦ (34) + (13) + (1) ¦ 34 + 13 + 2/2 ¦ 34 + 26/2 + 1 ¦ 2·17 + 13 + 1 ¦ 17·2+13+1 ¦ 34 +13 + 1 \
    ¦ F(9)+F(7)+1 ¦ 34 + (12+1) + 1 ¦ (30+4) + 13 + 1 ¦ 34 + 13 + F(2)
Suma | 89 | 89 ¦ F₁₁ ¦ F(11) ¦ (89)
Suma | 1597 5 | 1.597 + 5 ¦ 1 597 + 5 ¦ 1597 + 5 ¦ F(17) + F(5)
Suma | NoEntendida | 34 + + 1 ¦ 34 + a ¦ 34, 13, 1 ¦ + ¦ 34 + ¦ 34 + 1/2 ¦ treinta
Producto | 2 3 5 1 | 2^3*5 ¦ 2³ · 5 ¦ 2³·5 ¦ 2·2·2·5 ¦ 2*2*2*5 ¦ 5 x 2 x 2 x 2 ¦ 2x2x2x5 ¦ 2, 2, 2, 5 ¦ 2 2 2 5 \
    ¦ 5 · 2³ ¦ 2² · 2 · 5 ¦ (2^3)·5 ¦ (2³)(5) ¦ 2 ^ 3 × 5 ¦ 2³ × 5 ¦ 2; 2; 2; 5 ¦ 5·2^3 ¦ 2·5·2² ¦ 2^3·5^1 \
    ¦ 2³ 5 ¦ 5¹ · 2³ ¦ 2 2^2 5 ¦ 5, 2^3 ¦ 2*2^2*5
Producto | 2 1 5167 1 | 2 · 5167 ¦ 2 · 5.167 ¦ 2·5⍽167 ¦ 5167 · 2 ¦ 5.167 x 2
Producto | 7 1 | 7 ¦ (7) ¦ 7¹ ¦ 7^1
Producto | NoEntendida | 2^3 + 5 ¦ 2^a ¦ 2 · ¦ dos ¦ 2^-1 ¦ -2·5 ¦ 2/5
Solucion | 3 5 2 -4 | x = 3 + 5k, y = 2 - 4k ¦ x=3+5·t; y=2−4·t ¦ 3+5k, 2-4k ¦ x = 5k+3, y = 2 - 4 n \
    ¦ x=3+5k y=2-4k ¦ x = 3 + 5k; y = 2 − 4k ¦ x = 3+k·5, y = 2-k·4 ¦ (3 + 5k, 2 − 4k) \
    ¦ x = 3 + 5*k, y = 2 - 4*k ¦ x = 3+5m, y = 2-4m ¦ x = 3 + 5s, y = 2 − 4s ¦ x = 3 + 5λ, y = 2 − 4λ \
    ¦ x = 3 + 5 k, y = 2 − 4 k ¦ x = 5 k + 3 , y = −4 k + 2 ¦ X = 3 + 5k, Y = 2 − 4k ¦ x = 3 + 5K, y = 2 − 4K \
    ¦ x = 3 + 5k e y = 2 − 4k ¦ x = 3 + 5k and y = 2 − 4k ¦ y = 2 − 4k, x = 3 + 5k \
    ¦ {x = 3 + 5k, y = 2 − 4k} ¦ x = 3 + 5k, y = 2 + 4(−k)
Solucion | 3 -1 0 1 | x = 3 - k, y = k ¦ x = 3−k, y = 0+k ¦ 3-k, k ¦ x = 3 + (−1)k, y = 1k
Solucion | 1200 7 -5167 -2 | x = 1.200 + 7k, y = −5.167 − 2k ¦ x = 1200+7k, y = -5167-2k
Solucion | 3 0 2 0 | x = 3, y = 2 ¦ 3, 2
Solucion | NoEntendida | x = 3 + 5k ¦ x = y, y = x ¦ 3 ¦ x = 3 + k², y = k ¦ hola, adiós \
    ¦ x = 3 + 5k, y = , z = 1
Palabra | sí | sí ¦ si ¦ SI ¦ Sí. ¦ ¡Sí! ¦ sí ¦ SÍ ¦ «sí»
Palabra | no | no ¦ No ¦ NO. ¦ no!
Palabra | n² | n² ¦ n^2 ¦ N² ¦ n ^ 2 ¦ Θ(n²) ¦ O(n^2)
Palabra | 2ⁿ | 2^n ¦ 2ⁿ ¦ 2^N
Palabra | n · log n | n · log n ¦ n log n ¦ n*log n ¦ n·log(n) ¦ n log(n) ¦ N log N
Palabra | NoEntendida | quizá ¦ 7 ¦ sí y no ¦ n ¦ 2n ¦ x²
Fraccion | -7 12 | −7/12 ¦ -7/12 ¦ -7 / 12 ¦ − 7/12 ¦ (−7)/12 ¦ −(7/12) ¦ (-7/12) ¦ -7÷12 ¦ −7 ÷ 12
Fraccion | 14 24 | 14 / 24 ¦ 14/24 ¦ 14÷24 ¦ +14/24 ¦ (14/24)
Fraccion | 5 1 | 5 ¦ +5 ¦ (5) ¦ 5
Fraccion | 5 10 | 0,5 ¦ 0.5 ¦ +0,5 || Fraccion | 125 1000 | 0,125 ¦ 0.125
Fraccion | 1234 1 | 1.234 ¦ 1 234 ¦ 1234
Fraccion | EsLaPregunta | 3/4-1/6 ¦ 1/2+1/3 ¦ 2^3 ¦ mcd(4;6) ¦ 2·3
Fraccion | NoEntendida | siete ¦ 7/0 ¦ 7/ ¦ /12 ¦ 1//2 ¦ mod ¦ mod 3
FormulaDeCelda | 3*A1*(A1+1) | 3*A1*(A1+1) ¦ 3·a1(A1+1) ¦ 3·A1·(A1+1) ¦ 3×A1×(A1+1) ¦ 3 * A1 * (A1 + 1)
FormulaDeCelda | 3A1*(A1+1) | 3a1·(a1+1) ¦ 3A1(A1+1)
FormulaDeCelda | A1^2-2 | A1^2-2 ¦ A1² − 2 ¦ a1²-2 ¦ A1^2 - 2 ¦ a1 ^ 2 − 2
FormulaDeCelda | 2A1-1 | 2A1-1 ¦ 2a1 − 1 ¦ 2 A1 − 1
FormulaDeCelda | 2*A1-1 | 2*A1-1 ¦ 2·A1 − 1 ¦ 2 × A1 − 1
FormulaDeCelda | mcd(A1;12) | mcd(A1;12) ¦ mcd(a1; 12) || FormulaDeCelda | gcd(A1;12) | gcd(A1;12)
FormulaDeCelda | fib(A1) | fib(A1) ¦ F(A1) ¦ fib(a1)
FormulaDeCelda | NoEntendida | 3*B ¦ A1+ ¦ tres ¦ (A1 ¦ 3**A1 ¦ mcd(A1;;2) ¦ =3*A1 ¦ = A1² − 2 ¦ mod A1
)"_s;

QString comoSeLee(const QString &texto, const F &forma)
{
    const RespuestaLeida leida = leeRespuesta(texto, forma);
    switch (leida.estado) {
    case RespuestaLeida::Vacia:
        return u"Vacia"_s;
    case RespuestaLeida::NoEntendida:
        return leida.leo.contains(u"no entiendo «"_s) ? u"NoEntendida"_s : leida.leo;
    case RespuestaLeida::EsLaPregunta:
        return u"EsLaPregunta"_s;
    case RespuestaLeida::Leida:
        break;
    }
    if (!leida.leo.startsWith(u"leo "_s))
        return leida.leo;
    if (forma.clase == F::FormulaDeCelda)
        return QString(leida.numeros.join(u' ')).remove(u' ');
    return leida.palabra.isEmpty() ? leida.numeros.join(u' ') : leida.palabra;
}

QStringList formasDe(QString lista)
{
    QStringList formas =
        lista.replace(u'⎵', QChar(0x00a0)).replace(u'⍽', QChar(0x202f)).split(u'¦');
    for (QString &forma : formas)
        forma = forma.trimmed();
    return formas;
}

} // namespace

/// What is read of an answer, in every form in which one may be written.
class tst_LectorDeRespuestas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { IniciaBignum(50); }
    void cleanupTestCase() { TerminaBignum(); }

    void cadaForma_data() { filasDeTexto<QString, QString, QString>(Escritos); }
    void cadaForma()
    {
        const auto [clase, leido, lista] = estaFila<QString, QString, QString>();
        QStringList otras;
        for (const QString &forma : formasDe(lista)) {
            const QString como = comoSeLee(forma, Formas[clase]);
            if (como != leido)
                otras << forma + u" → "_s + como;
            ++m_formas[clase];
        }
        QVERIFY2(otras.isEmpty(), qPrintable(otras.join(u"; "_s)));
    }
    void deCadaClaseHayTreinta()
    {
        for (auto forma = Formas.cbegin(); forma != Formas.cend(); ++forma)
            QVERIFY2(m_formas.value(forma.key()) >= 30, qPrintable(forma.key()));
    }

    /// What is not understood is named as narrowly as it can be.
    void seNombraLoQueNoSeEntiende_data()
    {
        filasDeTexto<QString, QString, QString>(uR"(
            Lista | 3, a, 5 | «a» || Suma | 34 + + 1 | «34 + + 1» || Solucion | x = 3, | «x = 3,» || Suma | 34 + a | «a» || Producto | 2·x5·3 | «x5»
            Solucion | x = y, y = x | «x = y» || FormulaDeCelda | 3*B | «B» || Entero | cinco | «cinco»)"_s);
    }
    void seNombraLoQueNoSeEntiende()
    {
        const auto [clase, texto, parte] = estaFila<QString, QString, QString>();
        const QString leo = leeRespuesta(texto, Formas[clase]).leo;
        QVERIFY2(leo.contains(parte), qPrintable(leo));
    }

    void laPreguntaNoEsRespuesta_data()
    {
        filasDeTexto<QString, QString, bool>(uR"(
            fi(1689) | fi | yes || φ(1689) | fi | yes || phi(1689)+0 | fi | yes || 34^7736 mod 39 | ^ mod | yes
            34^7736 % 39 | ^ mod | yes || mcd(F(77);F(55)) | mcd | yes || GCD(12;18) | mcd | yes
            fib(11) | mcd | no || 3^4 | ^ mod | no || 17 mod 5 | ^ mod | no)"_s);
    }
    void laPreguntaNoEsRespuesta()
    {
        const auto [texto, preguntada, es] = estaFila<QString, QString, bool>();
        const auto leida = leeRespuesta(texto, {F::Entero, {}, {preguntada}});
        QCOMPARE(leida.estado == RespuestaLeida::EsLaPregunta, es);
    }

    void nadaYDemasiado()
    {
        QCOMPARE(leeRespuesta(u"  "_s, {}).estado, RespuestaLeida::Vacia);
        QCOMPARE(leeRespuesta(QString(100000, u'7'), {}).estado, RespuestaLeida::NoEntendida);
    }

private:
    QMap<QString, int> m_formas;
};

QTEST_GUILESS_MAIN(tst_LectorDeRespuestas)
#include "tst_LectorDeRespuestas.moc"
