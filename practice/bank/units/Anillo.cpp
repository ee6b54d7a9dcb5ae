// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/units/Anillo.h"

#include "practice/bank/shared/Factores.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "practice/bank/shared/PasosDelBanco.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/PasosDeInverso.h"

#include <algorithm>
#include <array>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

using Tramos = std::array<std::pair<qint64, qint64>, 3>;

Fallo juzgaPrimitiva(const RespuestaLeida &r, qint64 n)
{
    const GrupoUnidades &grupo = grupoDe(n);
    if (r.palabra == u"ninguna"_s)
        return grupo.esCiclico() ? Fallo::mal(Traduce(u"Sí la hay."_s), u"si-hay"_s) : correcto();
    const Unidad *unidad = grupo.unidad(static_cast<std::int32_t>(restoDe(r.numeros[0], n)));
    if (!unidad)
        return Fallo::mal(Traduce(u"Ese número no es una unidad módulo %1."_s).arg(n),
                          u"no-unidad"_s);
    if (grupo.esRaizPrimitiva(*unidad))
        return correcto();
    return Fallo::mal(
        Traduce(u"El orden de %1 es %2: sus potencias son solo %2 de las %3 unidades."_s)
            .arg(unidad->valor)
            .arg(unidad->orden)
            .arg(grupo.fi()),
        u"orden-menor"_s);
}

Pasos pasosDePrimitiva(qint64 n)
{
    const GrupoUnidades &grupo = grupoDe(n);
    QList<Paso> pasos{
        pasoCon(Traduce(u"Las potencias de una raíz primitiva son todas las unidades."_s),
                {u"φ(%1) = %2"_s.arg(n).arg(grupo.fi())})};
    if (!grupo.esCiclico()) {
        pasos << pasoCon(
            Traduce(u"Pero todas las unidades elevadas a %1 dan ya 1: no hay ninguna."_s)
                .arg(grupo.exponente()),
            {u"%1 < %2"_s.arg(grupo.exponente()).arg(grupo.fi())});
        return Pasos(pasos);
    }
    for (const Unidad &unidad : grupo.unidades()) {
        pasos << pasoCon(Traduce(u"El orden de %1 es %2."_s).arg(unidad.valor).arg(unidad.orden),
                         {u"%1^%2 == 1 (mod %3)"_s.arg(unidad.valor).arg(unidad.orden).arg(n)});
        if (grupo.esRaizPrimitiva(unidad))
            break;
    }
    return Pasos(pasos);
}

qint64 raizPrimitiva(qint64 n)
{
    const GrupoUnidades &grupo = grupoDe(n);
    const auto &unidades = grupo.unidades();
    return std::find_if(unidades.begin(), unidades.end(),
                        [&](const Unidad &u) { return grupo.esRaizPrimitiva(u); })
        ->valor;
}

Ejercicio primitiva(int nivel, Sorteo &sorteo)
{
    constexpr Tramos tramos{{{7, 30}, {31, 60}, {61, 150}}};
    const auto lista = [](bool ciclicos) {
        return [ciclicos](const std::pair<qint64, qint64> &t) {
            return losQue(t.first, t.second,
                          [ciclicos](qint64 n) { return grupoDe(n).esCiclico() == ciclicos; });
        };
    };
    static const std::array con{lista(true)(tramos[0]), lista(true)(tramos[1]),
                                lista(true)(tramos[2])};
    static const std::array sin{lista(false)(tramos[0]), lista(false)(tramos[1]),
                                lista(false)(tramos[2])};
    const auto i = static_cast<std::size_t>(nivel - 1);
    const bool hay = sorteo.entre(1, 3) > 1;
    const qint64 n = sorteo.de(hay ? con[i] : sin[i]);
    return {.enunciado =
                Traduce(u"Encuentre una raíz primitiva módulo %1 o, si no la hay, responda "
                        "«ninguna»."_s)
                    .arg(n),
            .forma = {FormaDeRespuesta::Entero, {u"ninguna"_s}},
            .ejemplo = Traduce(u"Una palabra o un número"_s),
            .esperada = hay ? QString::number(raizPrimitiva(n)) : Traduce(u"ninguna"_s),
            .juzga = [n](const RespuestaLeida &r) { return juzgaPrimitiva(r, n); },
            .pistas = {Traduce(u"Las hay solo para 2, 4, las potencias de un primo impar y sus "
                               "dobles."_s),
                       Traduce(u"Ha de tener orden %1: basta ver que no da 1 con %1 dividido entre "
                               "cada uno de sus primos."_s)
                           .arg(grupoDe(n).fi())},
            .solucion = [n] { return pasosDePrimitiva(n); }};
}

Fallo juzgaLambda(const RespuestaLeida &r, const Factores &factores)
{
    const qint64 lambda = lambdaDe(factores);
    const qint64 dado = numeroCorto(r).value_or(0);
    qint64 sinExponentes = 1, sinElDos = 1;
    for (const PotenciaDePrimo &f : factores) {
        sinExponentes = std::lcm(sinExponentes, f.primo - 1);
        sinElDos = std::lcm(sinElDos, fiDe({f}));
    }
    if (dado == lambda)
        return correcto();
    if (dado == fiDe(factores))
        return Fallo::mal(Traduce(u"Eso es φ: se toma el mínimo común múltiplo, no el producto."_s),
                          u"fi"_s);
    if (dado == sinElDos)
        return Fallo::mal(Traduce(u"Para 8, 16, 32… λ es la mitad de φ."_s), u"potencia-de-dos"_s);
    if (dado == sinExponentes)
        return Fallo::mal(
            Traduce(u"Ha olvidado los exponentes: ha tomado cada primo una sola vez."_s),
            u"sin-exponente"_s);
    if (r.numeros[0] == u"0" || r.numeros[0].startsWith(u'-'))
        return Fallo::mal(Traduce(u"Se pide un exponente positivo."_s), u"no-positivo"_s);
    if (restoDe(r.numeros[0], lambda) == 0)
        return Fallo::mal(Traduce(u"Con ese exponente todas dan 1, pero también con uno menor."_s),
                          u"multiplo"_s);
    return Fallo::mal(Traduce(u"Hay una unidad que con ese exponente no da 1."_s), u"no-todas"_s);
}

Pasos pasosDeLambda(const Factores &factores)
{
    QList<Paso> pasos{pasoCon(Traduce(u"Se descompone el número."_s),
                              {u"%1 = %2"_s.arg(productoDe(factores)).arg(enFormula(factores))})};
    QStringList valores;
    for (const PotenciaDePrimo &f : factores) {
        valores << QString::number(lambdaDe({f}));
        const bool mitad = lambdaDe({f}) != fiDe({f});
        pasos << pasoCon(mitad ? Traduce(u"En una potencia de 2 desde 8, λ es la mitad de φ."_s)
                               : Traduce(u"En esta potencia de un primo, λ es φ."_s),
                         {mitad ? u"λ(%1) = φ(%1)/2 = %2"_s.arg(f.valor()).arg(lambdaDe({f}))
                                : u"λ(%1) = φ(%1) = %2"_s.arg(f.valor()).arg(lambdaDe({f}))});
    }
    pasos << pasoCon(Traduce(u"Se toma el mínimo común múltiplo."_s),
                     {u"λ(%1) = %2(%3) = %4"_s.arg(productoDe(factores))
                          .arg(Traduce(u"mcm"_s), valores.join(u"; "_s))
                          .arg(lambdaDe(factores))});
    return Pasos(pasos);
}

/// At least two odd primes, or one and a power of 2 from 8 on: λ is never φ.
Factores factoresParaLambda(int nivel, Sorteo &sorteo)
{
    if (nivel == 1)
        return factoresConPotencia({3, 5, 7, 11, 13}, 2, 1, sorteo);
    const Factores dos{{2, static_cast<int>(sorteo.entre(3, 5))}};
    return dos + factoresConPotencia({3, 5, 7, 11, 13}, nivel - 1, 1, sorteo);
}

Ejercicio lambda(int nivel, Sorteo &sorteo)
{
    const Factores deN = factoresParaLambda(nivel, sorteo);
    const qint64 n = productoDe(deN);
    QList<qint64> valores;
    for (const PotenciaDePrimo &f : deN)
        valores << lambdaDe({f});
    return {.enunciado =
                Traduce(u"¿Cuál es el menor exponente positivo, λ(%1), con el que toda unidad "
                        "módulo %1 da 1?"_s)
                    .arg(n),
            .forma = {FormaDeRespuesta::Entero},
            .ejemplo = Traduce(u"Un número"_s),
            .esperada = QString::number(lambdaDe(deN)),
            .juzga = [deN](const RespuestaLeida &r) { return juzgaLambda(r, deN); },
            .pistas = {Traduce(u"Descomponga el número, halle λ de cada potencia y tome el mínimo "
                               "común múltiplo."_s),
                       Traduce(u"Las potencias de sus primos dan %1."_s).arg(listaDe(valores))},
            .solucion = [deN] { return pasosDeLambda(deN); }};
}

Fallo juzgaPalabra(const RespuestaLeida &r, qint64 a, qint64 n)
{
    const bool esUnidad = std::gcd(a, n) == 1;
    if ((r.palabra == u"unidad"_s) == esUnidad)
        return correcto();
    return Fallo::mal(Traduce(u"No: mire si %1 y %2 tienen algún divisor común."_s).arg(a).arg(n),
                      esUnidad ? u"unidad-negada"_s : u"divisor-negado"_s);
}

Fallo juzgaPrueba(const RespuestaLeida &r, qint64 a, qint64 n)
{
    if (!r.palabra.isEmpty())
        return Fallo::mal(Traduce(u"Dé el número que lo prueba."_s), u"sin-prueba"_s);
    const qint64 b = restoDe(r.numeros[0], n);
    const qint64 producto = a * b % n;
    if (b == 0)
        return Fallo::mal(Traduce(u"Con un múltiplo de %1 no se prueba nada."_s).arg(n), u"cero"_s);
    if (producto == 1 || producto == 0)
        return correcto();
    if (producto == n - 1)
        return Fallo::mal(Traduce(u"El producto da −1 y no 1: revise el signo."_s), u"signo"_s);
    return Fallo::mal(
        Traduce(u"%1 · %2 es %3 módulo %4: ni 0 ni 1."_s).arg(a).arg(b).arg(producto).arg(n),
        u"ni-cero-ni-uno"_s);
}

Pasos pasosDeUnidad(qint64 a, qint64 n)
{
    const qint64 d = std::gcd(a, n);
    if (d == 1)
        return pasosDeInverso(QString::number(a), QString::number(n));
    return Pasos(
        {pasoCon(Traduce(u"Tienen un divisor común: no es una unidad."_s),
                 {Traduce(u"mcd"_s) + u"(%1; %2) = %3"_s.arg(a).arg(n).arg(d)}),
         pasoCon(Traduce(u"Se multiplica por lo que queda de %1 sin ese divisor."_s).arg(n),
                 {u"%1*%2 = %3*%4 == 0 (mod %4)"_s.arg(a).arg(n / d).arg(a / d).arg(n)})});
}

Ejercicio unidad(int nivel, Sorteo &sorteo)
{
    constexpr Tramos tramos{{{12, 60}, {30, 120}, {121, 300}}};
    const auto compuesto = [](qint64 n) { return !esPrimoPequeno(n); };
    static const std::array compuestos{losQue(tramos[0].first, tramos[0].second, compuesto),
                                       losQue(tramos[1].first, tramos[1].second, compuesto),
                                       losQue(tramos[2].first, tramos[2].second, compuesto)};
    const qint64 n = sorteo.de(compuestos[static_cast<std::size_t>(nivel - 1)]);
    const bool esUnidad = sorteo.moneda();
    const qint64 a =
        esUnidad ? unidadDe(n, sorteo)
                 : sorteo.de(losQue(2, n - 2, [n](qint64 b) { return std::gcd(b, n) > 1; }));
    Ejercicio e;
    e.pistas = {Traduce(u"Todo depende del máximo común divisor de los dos números."_s),
                Traduce(u"El máximo común divisor es %1."_s).arg(std::gcd(a, n))};
    e.solucion = [a, n] { return pasosDeUnidad(a, n); };
    e.forma = {FormaDeRespuesta::Palabra, {u"unidad"_s, u"divisor de cero"_s}};
    if (nivel == 1) {
        e.enunciado =
            Traduce(u"¿Es %1 una unidad o un divisor de cero módulo %2? Responda «unidad» o "
                    "«divisor de cero»."_s)
                .arg(a)
                .arg(n);
        e.ejemplo = Traduce(u"Una palabra"_s);
        e.esperada = esUnidad ? Traduce(u"unidad"_s) : Traduce(u"divisor de cero"_s);
        e.juzga = [a, n](const RespuestaLeida &r) { return juzgaPalabra(r, a, n); };
        return e;
    }
    e.enunciado =
        Traduce(u"Si %1 es una unidad módulo %2, escriba su inverso; si es un divisor de cero, "
                "un número que no sea múltiplo de %2 y que multiplicado por %1 lo sea."_s)
            .arg(a)
            .arg(n);
    e.forma.clase = FormaDeRespuesta::Entero;
    e.ejemplo = Traduce(u"Un número"_s);
    e.esperada = QString::number(esUnidad ? grupoDe(n).unidad(static_cast<std::int32_t>(a))->inverso
                                          : n / std::gcd(a, n));
    e.juzga = [a, n](const RespuestaLeida &r) { return juzgaPrueba(r, a, n); };
    return e;
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDelAnillo()
{
    return {{u"unidades.primitiva"_s, u"Raíces primitivas"_s, primitiva},
            {u"unidades.lambda"_s, u"La función λ de Carmichael"_s, lambda},
            {u"unidades.unidad"_s, u"¿Unidad o divisor de cero?"_s, unidad}};
}
