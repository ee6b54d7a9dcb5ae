// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/units/Unidades.h"

#include "lessons/units/PasosDeUnidades.h"
#include "practice/bank/shared/Factores.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "practice/bank/shared/PasosDelBanco.h"
#include "practice/bank/units/Anillo.h"
#include "practice/bank/units/Lineal.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/PotenciaEscrita.h"
#include "shell/core/steps/PasosDeInverso.h"
#include "shell/core/steps/PasosDePotencia.h"

#include <array>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

Fallo juzgaFi(const RespuestaLeida &r, const Factores &factores)
{
    const qint64 n = productoDe(factores);
    const qint64 dado = numeroCorto(r).value_or(0);
    qint64 sinExponentes = 1;
    for (const PotenciaDePrimo &f : factores)
        sinExponentes *= f.primo - 1;
    if (dado == fiDe(factores))
        return correcto();
    if (dado == n - 1)
        return Fallo::mal(Traduce(u"φ(n) = n − 1 solo si n es primo."_s), u"n-menos-uno"_s);
    if (dado == sinExponentes)
        return Fallo::mal(
            Traduce(u"Ha olvidado los exponentes: ha tomado cada primo una sola vez."_s),
            u"sin-exponente"_s);
    if (dado == n - fiDe(factores))
        return Fallo::mal(Traduce(u"Esos son los que no son unidades."_s), u"no-unidades"_s);
    return Fallo::mal(Traduce(u"No es ese: descomponga %1 y multiplique los valores de φ de sus "
                              "potencias de primos."_s)
                          .arg(n),
                      u"otro"_s);
}

Factores factoresDelNivel(int nivel, Sorteo &sorteo)
{
    if (nivel == 1)
        return factoresConPotencia({2, 3, 5, 7, 11}, 2, 1, sorteo);
    if (nivel == 2)
        return factoresConPotencia({2, 3, 5, 7, 11}, 3, 1, sorteo);
    // A statement of its own: in one expression each compiler draws in an order of its own.
    const qint64 mayor = primoEntre(11, 31, sorteo);
    return factoresConPotencia({2, 3, 5, 7}, 2, 2, sorteo) + Factores{{mayor, 1}};
}

Ejercicio fi(int nivel, Sorteo &sorteo)
{
    const Factores deN = factoresDelNivel(nivel, sorteo);
    const qint64 n = productoDe(deN);
    return {.enunciado = Traduce(u"¿Cuánto vale φ(%1)?"_s).arg(n),
            .forma = {FormaDeRespuesta::Entero, {}, {u"fi"_s}},
            .ejemplo = Traduce(u"Un número"_s),
            .esperada = QString::number(fiDe(deN)),
            .juzga = [deN](const RespuestaLeida &r) { return juzgaFi(r, deN); },
            .pistas = {Traduce(u"Descomponga el número: φ(pᵏ) = pᵏ⁻¹·(p − 1), y los de las "
                               "potencias se multiplican."_s),
                       Traduce(u"El número tiene %1 factores primos distintos; el menor es %2."_s)
                           .arg(deN.size())
                           .arg(deN[0].primo)},
            .solucion =
                [n] { return pasosDeFi(FuncionEuler(QString::number(n)), QString::number(n)); }};
}

Fallo juzgaInverso(const RespuestaLeida &r, qint64 n, const Unidad &a)
{
    const qint64 dado = restoDe(r.numeros[0], n);
    if (dado == a.inverso)
        return numeroCorto(r) == dado
                   ? correcto()
                   : Fallo::bien(Traduce(u"¡Correcto!"_s) + u' ' +
                                 Traduce(u"Entre 0 y %1 se escribe %2."_s).arg(n - 1).arg(dado));
    if (dado == n - a.valor)
        return Fallo::mal(Traduce(u"Es el inverso aditivo: sumado da 0; se pide el que "
                                  "multiplicado da 1."_s),
                          u"inverso-aditivo"_s);
    if (dado == n - a.inverso)
        return Fallo::mal(Traduce(u"El producto da −1 y no 1: revise el signo."_s), u"signo"_s);
    return noEsInverso(a.valor, dado, n);
}

Ejercicio inverso(int nivel, Sorteo &sorteo)
{
    const std::array<std::pair<qint64, qint64>, 3> tramos{{{7, 30}, {31, 120}, {121, 400}}};
    const auto [desde, hasta] = tramos[static_cast<std::size_t>(nivel - 1)];
    const qint64 n = sorteo.entre(desde, hasta);
    const Unidad a = *grupoDe(n).unidad(static_cast<std::int32_t>(unidadDe(n, sorteo)));
    return {
        .enunciado = Traduce(u"¿Cuál es el inverso de %1 módulo %2?"_s).arg(a.valor).arg(n),
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(a.inverso),
        .juzga = [n, a](const RespuestaLeida &r) { return juzgaInverso(r, n, a); },
        .pistas = {Traduce(u"Haga el algoritmo de Euclides con los dos números y despeje el 1."_s),
                   Traduce(u"La primera división es %1 = %2 · %3 + %4."_s)
                       .arg(n)
                       .arg(n / a.valor)
                       .arg(a.valor)
                       .arg(n % a.valor)},
        .solucion = [n,
                     a] { return pasosDeInverso(QString::number(a.valor), QString::number(n)); }};
}

Fallo juzgaOrden(const RespuestaLeida &r, qint64 n, const Unidad &a)
{
    const QString &dado = r.numeros[0];
    if (dado == QString::number(a.orden))
        return correcto();
    if (dado == u"0"_s || dado.startsWith(u'-'))
        return Fallo::mal(Traduce(u"El orden es un exponente positivo."_s), u"no-positivo"_s);
    if (dado == QString::number(grupoDe(n).fi()))
        return Fallo::mal(
            Traduce(u"Ese es φ(%1): da 1, pero hay un exponente menor que también."_s).arg(n),
            u"fi"_s);
    const auto potencia =
        potenciaMod(a.valor, restoDe(dado, a.orden), static_cast<std::int32_t>(n));
    if (potencia == 1)
        return Fallo::mal(Traduce(u"Esa potencia da 1, pero hay un exponente menor que también."_s),
                          u"multiplo"_s);
    return Fallo::mal(
        Traduce(u"Con ese exponente la potencia da %1, y tendría que dar 1."_s).arg(potencia),
        u"no-da-uno"_s);
}

Pasos pasosDeOrden(qint64 n, const Unidad &a)
{
    QList<Paso> pasos;
    qint64 potencia = 1;
    for (qint64 k = 1; k <= a.orden; ++k) {
        const qint64 anterior = std::exchange(potencia, potencia * a.valor % n);
        pasos << pasoCon(
            k < a.orden ? Traduce(u"Todavía no es 1."_s)
                        : Traduce(u"Es 1 por primera vez: el orden es %1."_s).arg(k),
            {u"%1^%2 == %3*%1 == %4 (mod %5)"_s.arg(a.valor).arg(k).arg(anterior).arg(potencia).arg(
                n)});
    }
    return Pasos(pasos);
}

Ejercicio orden(int nivel, Sorteo &sorteo)
{
    const std::array<std::pair<qint64, qint64>, 3> tramos{{{7, 25}, {26, 60}, {61, 120}}};
    const auto [desde, hasta] = tramos[static_cast<std::size_t>(nivel - 1)];
    const qint64 n =
        sorteo.de(losQue(desde, hasta, [](qint64 m) { return grupoDe(m).exponente() > 2; }));
    const Unidad a = *grupoDe(n).unidad(static_cast<std::int32_t>(unidadDe(n, sorteo, 3)));
    return {
        .enunciado = Traduce(u"¿Cuál es el orden de %1 en el grupo de las unidades módulo %2?"_s)
                         .arg(a.valor)
                         .arg(n),
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(a.orden),
        .juzga = [n, a](const RespuestaLeida &r) { return juzgaOrden(r, n, a); },
        .pistas = {Traduce(
                       u"El orden divide al número de unidades: pruebe solo esos exponentes."_s),
                   Traduce(u"Hay %1 unidades módulo %2."_s).arg(grupoDe(n).fi()).arg(n)},
        .solucion = [n, a] { return pasosDeOrden(n, a); }};
}

struct Potencia
{
    qint64 a, k, n;

    qint64 fi() const { return grupoDe(n).fi(); }
    qint64 con(qint64 exponente) const
    {
        return potenciaMod(a, exponente, static_cast<std::int32_t>(n));
    }
};

Fallo juzgaPotencia(const RespuestaLeida &r, const Potencia &p)
{
    const auto dado = numeroCorto(r);
    if (dado == p.con(p.k))
        return correcto();
    if (restoDe(r.numeros[0], p.n) == p.con(p.k))
        return sinReducir(p.n);
    if (dado == p.con(p.k % p.n))
        return Fallo::mal(Traduce(u"El exponente no se reduce módulo n, sino módulo φ(n)."_s),
                          u"exponente-modulo-n"_s);
    if (dado == p.con(p.k % (p.n - 1)))
        return Fallo::mal(
            Traduce(u"Ha reducido el exponente módulo n − 1, que solo vale si n es primo."_s),
            u"n-menos-uno"_s);
    if (dado == p.a * (p.k % p.n) % p.n)
        return Fallo::mal(Traduce(u"Eso es el producto, no la potencia."_s), u"producto"_s);
    return Fallo::mal(
        Traduce(u"No es ese: reduzca el exponente módulo φ(%1) y calcule la potencia que "
                "queda."_s)
            .arg(p.n),
        u"otro"_s);
}

Pasos pasosDePotencia(const Potencia &p)
{
    const qint64 resto = p.k % p.fi();
    const Paso reduccion =
        pasoCon(Traduce(u"Por el teorema de Euler el exponente se reduce módulo φ(%1)."_s).arg(p.n),
                {u"φ(%1) = %2"_s.arg(p.n).arg(p.fi()),
                 u"%1 = %2*%3 + %4"_s.arg(p.k).arg(p.fi()).arg(p.k / p.fi()).arg(resto),
                 u"%1^{%2} == %1^{%3} (mod %4)"_s.arg(p.a).arg(p.k).arg(resto).arg(p.n)});
    return Pasos::seguidos(
        {Pasos({reduccion}),
         pasosDePotencia(QString::number(p.a), QString::number(resto), QString::number(p.n))});
}

const QList<qint64> &modulosDePotencia(int nivel)
{
    const auto compuestos = [](qint64 n) {
        return !esPrimoPequeno(n) && grupoDe(n).exponente() > 2;
    };
    static const std::array<QList<qint64>, 3> modulos{
        losQue(7, 31, esPrimoPequeno), losQue(14, 60, compuestos), losQue(61, 150, compuestos)};
    return modulos[static_cast<std::size_t>(nivel - 1)];
}

Ejercicio potenciaPorEuler(int nivel, Sorteo &sorteo)
{
    const qint64 n = sorteo.de(modulosDePotencia(nivel));
    const qint64 a = unidadDe(n, sorteo, 3);
    const qint64 fi = grupoDe(n).fi();
    const qint64 vueltas =
        nivel == 3 ? sorteo.entre(1'000, 90'000) : sorteo.entre(5 * nivel, 60 * nivel);
    const Potencia p{a, fi * vueltas + sorteo.entre(2, fi - 1), n};
    return {
        .enunciado = Traduce(u"¿Qué resto da %1 al dividirlo entre %2?"_s)
                         .arg(potenciaEscrita(a, p.k))
                         .arg(n),
        .forma = {FormaDeRespuesta::Entero, {}, {u"^ mod"_s}},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(p.con(p.k)),
        .juzga = [p](const RespuestaLeida &r) { return juzgaPotencia(r, p); },
        .pistas =
            {Traduce(u"Una unidad elevada a φ(n) da 1: el exponente se puede reducir."_s),
             Traduce(u"φ(%1) = %2, y el exponente se queda en %3."_s).arg(n).arg(fi).arg(p.k % fi)},
        .solucion = [p] { return pasosDePotencia(p); }};
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDeUnidades()
{
    return QList<TipoDeEjercicio>{
               {u"unidades.fi"_s, u"La función φ de Euler"_s, fi},
               {u"unidades.inverso"_s, u"Inverso módulo n"_s, inverso},
               {u"unidades.orden"_s, u"Orden de una unidad"_s, orden},
               {u"unidades.potencia"_s, u"Potencias por el teorema de Euler"_s, potenciaPorEuler}} +
           ejerciciosDelAnillo() + ejerciciosDeCongruenciasLineales();
}
