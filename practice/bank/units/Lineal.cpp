// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/units/Lineal.h"

#include "lessons/euclid/PasosDeEuclides.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "practice/bank/shared/PasosDelBanco.h"
#include "shell/core/ModGlobal.h"

#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

/// a·x ≡ b (mod n).
struct Lineal
{
    qint64 a, b, n;

    qint64 mcd() const { return std::gcd(a, n); }
    bool cumple(qint64 x) const { return restoPositivo(a * restoPositivo(x, n) - b, n) == 0; }
    QList<qint64> soluciones() const
    {
        return losQue(0, n - 1, [this](qint64 x) { return cumple(x); });
    }
};

Fallo juzgaLineal(const RespuestaLeida &r, const Lineal &l)
{
    const bool soluble = l.b % l.mcd() == 0;
    if (!r.palabra.isEmpty())
        return soluble ? Fallo::mal(
                             Traduce(u"Sí tiene: el máximo común divisor de %1 y %2 divide a %3."_s)
                                 .arg(l.a)
                                 .arg(l.n)
                                 .arg(l.b),
                             u"si-hay"_s)
                       : correcto();
    QList<qint64> distintas;
    bool reducidas = true;
    for (qsizetype i = 0; i < r.numeros.size(); ++i) {
        const qint64 x = restoDe(r.numeros[i], l.n);
        if (!l.cumple(x))
            return Fallo::mal(Traduce(u"x = %1 no la cumple: %2 · x es %3 módulo %4."_s)
                                  .arg(x)
                                  .arg(l.a)
                                  .arg(l.a * x % l.n)
                                  .arg(l.n),
                              u"no-cumple"_s);
        reducidas = reducidas && numeroCorto(r, i) == x;
        if (!distintas.contains(x))
            distintas << x;
    }
    if (distintas.size() < l.mcd())
        return Fallo::mal(Traduce(u"La cumplen, pero no son todas."_s), u"faltan"_s);
    return reducidas ? correcto() : sinReducir(l.n);
}

Pasos pasosDeLineal(const Lineal &l)
{
    const qint64 d = l.mcd();
    const Pasos divisiones = pasosDeEuclides(
        {Moneda::deEntero(l.n), Moneda::deEntero(l.a), AlgoritmoEuclides::Estandar});
    if (l.b % d != 0)
        return seguidos(
            divisiones,
            {pasoCon(Traduce(u"El máximo común divisor no divide al término de la derecha: "
                             "no hay solución."_s),
                     {u"%1 !| %2"_s.arg(d).arg(l.b)})});
    const qint64 m = l.n / d, u = l.a / d % m, t = l.b / d;
    const qint64 inverso = grupoDe(m).unidad(static_cast<std::int32_t>(u))->inverso;
    return seguidos(
        divisiones,
        {pasoCon(Traduce(u"Se divide todo entre el máximo común divisor."_s),
                 {u"%1*x == %2 (mod %3)"_s.arg(u).arg(t).arg(m)}),
         pasoCon(Traduce(u"Se multiplica por el inverso."_s),
                 {u"%1*%2 == 1 (mod %3)"_s.arg(u).arg(inverso).arg(m),
                  u"x == %1*%2 == %3 (mod %4)"_s.arg(inverso).arg(t).arg(inverso * t % m).arg(m)}),
         Paso{Traduce(u"Entre 0 y %1 están estas: %2."_s)
                  .arg(QString::number(l.n - 1), listaDe(l.soluciones()))}});
}

/// d·u·x ≡ b (mod d·m) with u a unit of Z_m: d solutions or, one time in four, none.
Lineal congruenciaDelNivel(int nivel, Sorteo &sorteo)
{
    const qint64 d = nivel == 1 ? 1 : sorteo.entre(2, 2 * nivel);
    const qint64 m = sorteo.entre(7, 8 + 8 * nivel);
    const qint64 a = d * unidadDe(m, sorteo);
    const qint64 b = d * sorteo.entre(1, m - 1);
    const bool sin = d > 1 && sorteo.entre(1, 4) == 1;
    return {a, sin ? b + sorteo.entre(1, d - 1) : b, d * m};
}

Ejercicio lineal(int nivel, Sorteo &sorteo)
{
    const Lineal l = congruenciaDelNivel(nivel, sorteo);
    return {
        .enunciado =
            Traduce(u"Escriba todas las soluciones entre 0 y %1 de %2 · x ≡ %3 (mod %4). Si no "
                    "hay, responda «ninguna»."_s)
                .arg(l.n - 1)
                .arg(l.a)
                .arg(l.b)
                .arg(l.n),
        .forma = {FormaDeRespuesta::Lista, {u"ninguna"_s}},
        .ejemplo = Traduce(u"Números separados por comas"_s),
        .esperada = l.b % l.mcd() == 0 ? listaDe(l.soluciones()) : Traduce(u"ninguna"_s),
        .juzga = [l](const RespuestaLeida &r) { return juzgaLineal(r, l); },
        .pistas = {Traduce(u"Calcule el máximo común divisor del coeficiente y el módulo, y vea si "
                           "divide al otro lado."_s),
                   Traduce(u"El máximo común divisor es %1."_s).arg(l.mcd())},
        .solucion = [l] { return pasosDeLineal(l); }};
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDeCongruenciasLineales()
{
    return {{u"unidades.lineal"_s, u"Congruencias lineales"_s, lineal}};
}
