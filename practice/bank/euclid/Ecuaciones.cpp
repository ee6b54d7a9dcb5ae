// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/euclid/Ecuaciones.h"

#include "lessons/euclid/PasosDeEuclides.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "practice/bank/shared/PasosDelBanco.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>
#include <numeric>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// a·x + b·y = c; b may be negative. As many solutions as its makers draw.
struct Ecuacion
{
    qint64 a;
    qint64 b;
    qint64 c;

    qint64 mcd() const { return std::gcd(a, b); }
    QString texto() const
    {
        return u"%1 · x %2 %3 · y = %4"_s.arg(a)
            .arg(b < 0 ? u"−"_s : u"+"_s)
            .arg(std::abs(b))
            .arg(c);
    }
    QString combinada(qint64 x, qint64 y) const ///< as a formula
    {
        return u"%1*%2 %3 %4*%5"_s.arg(a)
            .arg(trasSigno(x))
            .arg(b < 0 ? u"-"_s : u"+"_s)
            .arg(std::abs(b))
            .arg(trasSigno(y));
    }
};

Pasos divisionesDe(qint64 a, qint64 b)
{
    return pasosDeEuclides({Moneda::deEntero(a), Moneda::deEntero(b), AlgoritmoEuclides::Estandar});
}

Fallo juzgaSiNo(const RespuestaLeida &r, const Ecuacion &e)
{
    if ((r.palabra == u"sí"_s) == (e.c % e.mcd() == 0))
        return correcto();
    return Fallo::mal(Traduce(u"No: mire si el máximo común divisor divide a %1."_s).arg(e.c),
                      r.palabra == u"sí"_s ? u"insoluble"_s : u"soluble"_s);
}

/// Numbers chosen among some: in any order, each once or more.
Fallo juzgaElegidos(const RespuestaLeida &r, const QList<qint64> &dados, qint64 d)
{
    QList<qint64> elegidos;
    for (qsizetype i = 0; i < r.numeros.size(); ++i) {
        const qint64 c = numeroCorto(r, i).value_or(-1);
        if (!dados.contains(c))
            return Fallo::mal(Traduce(u"Elija solo entre los números dados."_s), u"fuera"_s);
        if (c % d != 0)
            return Fallo::mal(Traduce(u"Con alguno de esos números no tiene solución."_s),
                              u"sobra"_s);
        if (!elegidos.contains(c))
            elegidos << c;
    }
    const auto solubles =
        std::count_if(dados.begin(), dados.end(), [d](qint64 c) { return c % d == 0; });
    if (elegidos.size() == solubles)
        return correcto();
    return Fallo::mal(Traduce(u"No están todos los que dan una ecuación con solución."_s),
                      u"faltan"_s);
}

Pasos pasosDeSoluble(qint64 a, qint64 b, const QList<qint64> &cs)
{
    const qint64 d = std::gcd(a, b);
    QStringList formulas;
    for (const qint64 c : cs)
        formulas << u"%1 %2 %3"_s.arg(d).arg(c % d == 0 ? u"|"_s : u"!|"_s).arg(c);
    return seguidos(divisionesDe(a, b),
                    {pasoCon(Traduce(u"Hay solución cuando el máximo común divisor, %1, divide al "
                                     "término independiente."_s)
                                 .arg(d),
                             formulas)});
}

Ejercicio soluble(int nivel, Sorteo &sorteo)
{
    const auto coprimos = coprimosDe(1 + nivel, sorteo);
    const qint64 d = sorteo.entre(2, 5 + 4 * nivel);
    const qint64 a = coprimos.first * d;
    const qint64 b = coprimos.second * d;
    QList<qint64> veces(30);
    std::iota(veces.begin(), veces.end(), 3);
    QList<qint64> cs;
    QList<qint64> solubles;
    for (const qint64 k : sorteo.barajada(veces).first(nivel == 1 ? 1 : 2 * nivel)) {
        cs << k * d + (sorteo.moneda() ? 0 : sorteo.entre(1, d - 1));
        if (cs.constLast() % d == 0)
            solubles << cs.constLast();
    }
    Ejercicio e;
    e.pistas = {
        Traduce(u"Todo lo que da a · x + b · y es múltiplo del máximo común divisor de a y b."_s),
        Traduce(u"El máximo común divisor es %1."_s).arg(d)};
    e.solucion = [a, b, cs] { return pasosDeSoluble(a, b, cs); };
    if (nivel == 1) {
        const Ecuacion ecuacion{a, b, cs.constFirst()};
        e.enunciado =
            Traduce(u"¿Tiene %1 soluciones enteras? Responda sí o no."_s).arg(ecuacion.texto());
        e.forma = {FormaDeRespuesta::Palabra, {u"sí"_s, u"no"_s}};
        e.ejemplo = Traduce(u"Una palabra"_s);
        e.esperada = solubles.isEmpty() ? Traduce(u"no"_s) : Traduce(u"sí"_s);
        e.juzga = [ecuacion](const RespuestaLeida &r) { return juzgaSiNo(r, ecuacion); };
        return e;
    }
    e.enunciado = Traduce(u"¿Para cuáles de estos valores de c tiene %1 · x + %2 · y = c "
                          "soluciones enteras? %3. Si para ninguno, responda «ninguno»."_s)
                      .arg(QString::number(a), QString::number(b), listaDe(cs));
    e.forma = {FormaDeRespuesta::Lista, {u"ninguno"_s}};
    e.ejemplo = Traduce(u"Números separados por comas"_s);
    e.esperada = solubles.isEmpty() ? Traduce(u"ninguno"_s) : listaDe(solubles);
    e.juzga = [cs, d](const RespuestaLeida &r) { return juzgaElegidos(r, cs, d); };
    return e;
}

Fallo juzgaGeneral(const RespuestaLeida &r, const Ecuacion &e)
{
    const QString &x = r.numeros[0], &pasoX = r.numeros[1];
    const QString &y = r.numeros[2], &pasoY = r.numeros[3];
    const QString valor = combinacion(e.a, x, e.b, y);
    if (valor != QString::number(e.c))
        return Fallo::mal(Traduce(u"Para k = 0 no cumple la ecuación: sale %1 en vez de %2."_s)
                              .arg(valor)
                              .arg(e.c),
                          u"inicio"_s);
    if (combinacion(e.a, pasoX, e.b, pasoY) != u"0"_s)
        return Fallo::mal(Traduce(u"Para k = 1 ya no cumple la ecuación: revise lo que se suma a x "
                                  "y a y por cada k."_s),
                          u"paso"_s);
    if (pasoX == u"0"_s)
        return Fallo::mal(Traduce(u"Esa es una solución; se piden todas, con un número k."_s),
                          u"una-sola"_s);
    const QString paso = QString::number(std::abs(e.b) / e.mcd());
    if (pasoX == paso || pasoX == u'-' + paso)
        return correcto();
    return Fallo::mal(Traduce(u"Todas esas son soluciones, pero entre ellas hay otras: ¿ha "
                              "dividido entre el máximo común divisor?"_s),
                      u"sin-dividir"_s);
}

/// Where a solution is, by Bezout's coefficients.
std::pair<qint64, qint64> unaSolucion(const Ecuacion &e)
{
    const auto [s, t] = coeficientesDe(e.a, std::abs(e.b));
    const qint64 k = e.c / e.mcd();
    return {s * k, e.b < 0 ? -t * k : t * k};
}

QString recta(qint64 inicio, qint64 paso)
{
    return u"%1 %2 %3k"_s.arg(inicio).arg(paso < 0 ? u"-"_s : u"+"_s).arg(std::abs(paso));
}

Pasos pasosDeGeneral(const Ecuacion &e)
{
    const auto [x, y] = unaSolucion(e);
    return seguidos(
        divisionesDe(e.a, std::abs(e.b)),
        {pasoCon(Traduce(u"Multiplicada por %1 da una solución."_s).arg(e.c / e.mcd()),
                 {u"%1 = %2"_s.arg(e.combinada(x, y)).arg(e.c)}),
         pasoCon(Traduce(u"Las demás se separan de ella en lo que cada coeficiente tiene de más "
                         "sobre el máximo común divisor."_s),
                 {u"x = "_s + recta(x, e.b / e.mcd()).replace(u"k"_s, u"*k"_s),
                  u"y = "_s + recta(y, -e.a / e.mcd()).replace(u"k"_s, u"*k"_s)})});
}

Ejercicio general(int nivel, Sorteo &sorteo)
{
    const auto coprimos = coprimosDe(1 + nivel, sorteo);
    const qint64 d = nivel == 1 ? 1 : sorteo.entre(2, 3 * nivel);
    const qint64 signo = nivel == 3 && sorteo.moneda() ? -1 : 1;
    const Ecuacion e{coprimos.first * d, signo * coprimos.second * d, d * sorteo.entre(2, 20)};
    const auto [x, y] = unaSolucion(e);
    return {
        .enunciado =
            Traduce(u"Escriba la solución general, en números enteros, de %1."_s).arg(e.texto()),
        .forma = {FormaDeRespuesta::Solucion},
        .ejemplo = u"x = … + …k, y = … − …k"_s,
        .esperada = u"x = %1, y = %2"_s.arg(recta(x, e.b / d), recta(y, -e.a / d)),
        .juzga = [e](const RespuestaLeida &r) { return juzgaGeneral(r, e); },
        .pistas = {Traduce(u"Halle primero una solución, con el algoritmo de Euclides."_s),
                   Traduce(u"Una solución es x = %1, y = %2."_s).arg(x).arg(y)},
        .solucion = [e] { return pasosDeGeneral(e); }};
}

/// How many solutions have x, y ≥ minimo.
qint64 cuantasDesde(const Ecuacion &e, qint64 minimo)
{
    qint64 cuantas = 0;
    for (qint64 x = minimo; e.c - e.a * x >= e.b * minimo; ++x)
        cuantas += (e.c - e.a * x) % e.b == 0 ? 1 : 0;
    return cuantas;
}

Fallo juzgaPositivas(const RespuestaLeida &r, const Ecuacion &e, qint64 cuantas)
{
    if (r.palabra == u"infinitas"_s)
        return Fallo::mal(Traduce(u"Infinitas son las enteras: se piden con x > 0 e y > 0."_s),
                          u"enteras"_s);
    const qint64 dado = r.palabra.isEmpty() ? numeroCorto(r).value_or(-1) : 0;
    if (dado == cuantas)
        return correcto();
    if (dado == cuantasDesde(e, 0))
        return Fallo::mal(Traduce(u"Ha contado alguna en que x o y es 0."_s), u"con-ceros"_s);
    return Fallo::mal(Traduce(u"No son esas. Parta de la solución general y vea con qué valores de "
                              "k son positivos los dos."_s),
                      u"otra-cuenta"_s);
}

Pasos pasosDePositivas(const Ecuacion &e)
{
    QStringList soluciones;
    for (qint64 x = 1; e.c - e.a * x >= e.b; ++x) {
        if ((e.c - e.a * x) % e.b == 0)
            soluciones << u"%1 = %2"_s.arg(e.combinada(x, (e.c - e.a * x) / e.b)).arg(e.c);
    }
    return seguidos(
        pasosDeGeneral(e),
        {pasoCon(Traduce(u"Con x > 0 e y > 0 quedan estas: %1."_s).arg(soluciones.size()),
                 soluciones)});
}

/// An equation with exactly so many solutions x, y > 0: from the first x and the last y, between
/// which lie the others.
Ecuacion conPositivas(qint64 cuantas, qint64 d, const std::pair<qint64, qint64> &coprimos,
                      Sorteo &sorteo)
{
    const auto [p, q] = coprimos;
    const qint64 y = sorteo.entre(1, p);
    const qint64 x = cuantas == 0 ? 0 : sorteo.entre(1, q);
    return {p * d, q * d, d * (p * x + q * (cuantas == 0 ? y : y + p * (cuantas - 1)))};
}

Ejercicio positivas(int nivel, Sorteo &sorteo)
{
    const auto coprimos = coprimosDe(1 + nivel, sorteo);
    const qint64 cuantas = sorteo.entre(nivel == 1 ? 1 : 0, 3 * nivel + 1);
    const Ecuacion e = conPositivas(cuantas, sorteo.entre(1, 2 * nivel - 1), coprimos, sorteo);
    const auto [x, y] = unaSolucion(e);
    return {
        .enunciado =
            Traduce(u"¿Cuántas soluciones enteras con x > 0 e y > 0 tiene %1?"_s).arg(e.texto()),
        .forma = {FormaDeRespuesta::Entero, {u"ninguna"_s, u"infinitas"_s}},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(cuantas),
        .juzga = [e, cuantas](const RespuestaLeida &r) { return juzgaPositivas(r, e, cuantas); },
        .pistas = {Traduce(u"Escriba la solución general y vea entre qué valores ha de estar "
                           "k."_s),
                   Traduce(u"Una solución es x = %1, y = %2."_s).arg(x).arg(y)},
        .solucion = [e] { return pasosDePositivas(e); }};
}

} // namespace

std::pair<qint64, qint64> coprimosDe(int divisiones, Sorteo &sorteo)
{
    qint64 b = 1;
    qint64 a = sorteo.entre(2, 5); // the last quotient is never 1
    for (int i = 1; i < divisiones; ++i)
        b = std::exchange(a, sorteo.entre(1, 4) * a + b);
    return {a, b};
}

std::pair<qint64, qint64> coeficientesDe(qint64 a, qint64 b)
{
    const TablaEuclides tabla(Moneda::deEntero(a), Moneda::deEntero(b),
                              AlgoritmoEuclides::Estandar);
    const DivisionEuclides &fila = tabla.divisiones()[tabla.divisiones().size() - 2];
    return {fila.coef1, fila.coef2};
}

QList<TipoDeEjercicio> ejerciciosDeEcuaciones()
{
    return {{u"euclides.soluble"_s, u"¿Tiene solución a·x + b·y = c?"_s, soluble},
            {u"euclides.general"_s, u"Solución general de a·x + b·y = c"_s, general},
            {u"euclides.positivas"_s, u"Soluciones positivas"_s, positivas}};
}
