// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/primes/Primos.h"

#include "practice/bank/primes/Divisores.h"
#include "practice/bank/primes/Testigos.h"
#include "practice/bank/shared/Factores.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "practice/bank/shared/PasosDelBanco.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

Fallo juzgaPrimo(const RespuestaLeida &r, qint64 n)
{
    if (r.palabra == u"compuesto"_s)
        return Fallo::mal(Traduce(u"Para decir que es compuesto dé un divisor suyo."_s),
                          u"sin-divisor"_s);
    if (r.palabra == u"primo"_s)
        return esPrimoPequeno(n)
                   ? correcto()
                   : Fallo::mal(Traduce(u"No lo es: tiene un divisor propio."_s), u"por-primo"_s);
    const qint64 dado = std::abs(numeroCorto(r).value_or(0));
    if (dado == 1 || dado == n)
        return Fallo::mal(Traduce(u"Ese divide a cualquiera: dé un divisor distinto de 1 y del "
                                  "mismo número."_s),
                          u"trivial"_s);
    if (dado != 0 && n % dado == 0)
        return correcto();
    return Fallo::mal(Traduce(u"Ese número no lo divide."_s), u"no-divide"_s);
}

Pasos pasosDePrimo(qint64 n)
{
    QStringList formulas;
    for (const qint64 p : primosPequenos()) {
        if (p * p > n)
            return Pasos({pasoCon(Traduce(u"Ningún primo hasta la raíz lo divide."_s), formulas),
                          pasoCon(Traduce(u"El primo siguiente pasa de la raíz: es primo."_s),
                                  {u"%1^2 > %2"_s.arg(p).arg(n)})});
        if (n % p == 0)
            return Pasos(
                {pasoCon(Traduce(u"Se prueba con los primos, del menor al mayor."_s), formulas),
                 pasoCon(Traduce(u"Este lo divide: es compuesto."_s),
                         {u"%1 = %2*%3"_s.arg(n).arg(p).arg(n / p)})});
        formulas << u"%1 !| %2"_s.arg(p).arg(n);
    }
    return {};
}

/// A product of two primes that no glance splits, or a prime of its neighbourhood.
Ejercicio esPrimo(int nivel, Sorteo &sorteo)
{
    const qint64 p = primoEntre(3 + 4 * nivel, 20 * nivel, sorteo);
    const qint64 q = primoEntre(p, 40 * nivel, sorteo);
    const bool primo = sorteo.moneda();
    const qint64 n =
        primo ? primoEntre(std::max<qint64>(p * q - 60, 40), p * q + 60, sorteo) : p * q;
    const auto raiz = static_cast<qint64>(std::sqrt(n));
    return {.enunciado = Traduce(u"¿Es primo %1? Si lo es, responda «primo»; si no, un divisor "
                                 "distinto de 1 y de %1."_s)
                             .arg(n),
            .forma = {FormaDeRespuesta::Entero, {u"primo"_s, u"compuesto"_s}, {u"primo"_s}},
            .ejemplo = Traduce(u"Una palabra o un número"_s),
            .esperada = primo ? Traduce(u"primo"_s) : QString::number(p),
            .juzga = [n](const RespuestaLeida &r) { return juzgaPrimo(r, n); },
            .pistas = {Traduce(u"Pruebe con los primos 2, 3, 5, 7… ¿Hasta dónde hace falta?"_s),
                       Traduce(u"Basta probar con los primos hasta %1."_s).arg(raiz)},
            .solucion = [n] { return pasosDePrimo(n); }};
}

/// The factors as they were answered; empty where they outgrow n.
Factores leidos(const RespuestaLeida &r, qint64 n)
{
    Factores factores;
    qint64 producto = 1;
    for (qsizetype i = 0; i + 1 < r.numeros.size(); i += 2) {
        const qint64 p = numeroCorto(r, i).value_or(0);
        const qint64 exponente = numeroCorto(r, i + 1).value_or(0);
        for (qint64 k = 0; k < exponente; ++k) {
            if (p < 1 || exponente > 100 || (producto *= p) > n)
                return {};
        }
        if (exponente > 0)
            factores.append({p, static_cast<int>(exponente)});
    }
    return factores;
}

bool mismosPrimos(const Factores &a, const Factores &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const auto &x, const auto &y) { return x.primo == y.primo; });
}

Fallo juzgaFactores(const RespuestaLeida &r, const Factores &factores)
{
    const qint64 n = productoDe(factores);
    const Factores dados = leidos(r, n);
    const qint64 producto = dados.isEmpty() ? 0 : productoDe(dados);
    const auto noPrimo = std::find_if(dados.begin(), dados.end(), [](const auto &f) {
        return factoresDe(f.primo).size() != 1 || factoresDe(f.primo)[0].exponente != 1;
    });
    if (producto == n && noPrimo == dados.end())
        return correcto();
    if (producto == n)
        return Fallo::mal(
            Traduce(u"El producto está bien, pero %1 no es primo."_s).arg(noPrimo->primo),
            noPrimo->primo == 1 ? u"uno"_s : u"factor-compuesto"_s);
    if (mismosPrimos(dados, factores))
        return n % producto == 0
                   ? Fallo::mal(
                         Traduce(u"Los primos son esos, pero ha olvidado algún exponente."_s),
                         u"exponentes"_s)
                   : Fallo::mal(Traduce(u"Los primos son esos, pero no sus exponentes."_s),
                                u"otros-exponentes"_s);
    return Fallo::mal(Traduce(u"Multiplique lo que ha escrito: no sale %1."_s).arg(n),
                      u"otro-producto"_s);
}

Pasos pasosDeFactores(qint64 n)
{
    QStringList divisiones;
    qint64 resto = n;
    for (const PotenciaDePrimo &f : factoresDe(n)) {
        for (int i = 0; i < f.exponente; ++i, resto /= f.primo)
            divisiones << u"%1 = %2*%3"_s.arg(resto).arg(f.primo).arg(resto / f.primo);
    }
    return Pasos({pasoCon(Traduce(u"Se divide entre cada primo mientras se pueda."_s), divisiones),
                  pasoCon(Traduce(u"Los primos iguales se juntan en una potencia."_s),
                          {u"%1 = %2"_s.arg(n).arg(enFormula(factoresDe(n)))})});
}

Factores factoresDelNivel(int nivel, Sorteo &sorteo)
{
    if (nivel == 1)
        return factoresConPotencia({2, 3, 5, 7}, 2, 2, sorteo);
    if (nivel == 2)
        return factoresConPotencia({2, 3, 5, 7, 11, 13}, 3, 1, sorteo);
    // A statement of its own: in one expression each compiler draws in an order of its own.
    const qint64 mayor = primoEntre(17, 97, sorteo);
    return factoresConPotencia({2, 3, 5, 7, 11}, 2, 2, sorteo) + Factores{{mayor, 1}};
}

Ejercicio factores(int nivel, Sorteo &sorteo)
{
    const Factores deN = factoresDelNivel(nivel, sorteo);
    const qint64 n = productoDe(deN);
    return {.enunciado = Traduce(u"Descomponga %1 en factores primos."_s).arg(n),
            .forma = {FormaDeRespuesta::Producto},
            .ejemplo = u"101² · 103"_s,
            .esperada = enFormula(deN),
            .juzga = [deN](const RespuestaLeida &r) { return juzgaFactores(r, deN); },
            .pistas = {Traduce(u"Divida entre 2 mientras se pueda, luego entre 3, entre 5…"_s),
                       Traduce(u"Su menor factor primo es %1, con exponente %2."_s)
                           .arg(deN[0].primo)
                           .arg(deN[0].exponente)},
            .solucion = [n] { return pasosDeFactores(n); }};
}

Fallo juzgaSiguiente(const RespuestaLeida &r, qint64 n, qint64 primo)
{
    const qint64 dado = numeroCorto(r).value_or(2 * n);
    if (dado == primo)
        return correcto();
    if (dado <= n)
        return Fallo::mal(Traduce(u"Tiene que ser mayor que %1."_s).arg(n), u"no-mayor"_s);
    if (dado >= 2 * n)
        return Fallo::mal(
            Traduce(u"Demasiado lejos: entre %1 y su doble siempre hay un primo."_s).arg(n),
            u"lejos"_s);
    const Factores factores = factoresDe(dado);
    if (factores[0].primo != dado)
        return Fallo::mal(
            Traduce(u"%1 no es primo: lo divide %2."_s).arg(dado).arg(factores[0].primo),
            u"compuesto"_s);
    return Fallo::mal(Traduce(u"Es primo, pero se ha saltado alguno."_s), u"salto"_s);
}

Pasos pasosDeSiguiente(qint64 n, qint64 primo)
{
    QStringList descartados;
    for (qint64 m = n + 1; m < primo; ++m)
        descartados << u"%1 = %2"_s.arg(m).arg(enFormula(factoresDe(m)));
    return seguidos(
        Pasos({pasoCon(Traduce(u"Los números que siguen son compuestos."_s), descartados)}),
        {pasoCon(Traduce(u"A %1 no lo divide ningún primo hasta su raíz: es primo."_s).arg(primo),
                 {u"%1 > %2"_s.arg(primo).arg(n)})});
}

/// From within a gap of at least six between two primes, so that there is something to discard.
Ejercicio siguiente(int nivel, Sorteo &sorteo)
{
    const auto &primos = primosPequenos();
    const std::array<std::pair<qint64, qint64>, 3> tramos{
        {{20, 200}, {200, 1'000}, {1'000, 5'000}}};
    const auto [desde, hasta] = tramos[static_cast<std::size_t>(nivel - 1)];
    QList<qsizetype> huecos;
    for (qsizetype i = 0; i + 1 < primos.size() && primos[i] < hasta; ++i) {
        if (primos[i] >= desde && primos[i + 1] - primos[i] >= 6)
            huecos << i;
    }
    const qsizetype hueco = sorteo.de(huecos);
    const qint64 primo = primos[hueco + 1];
    const qint64 n = sorteo.entre(primos[hueco], primo - 4);
    const auto raiz = static_cast<qint64>(std::sqrt(primo));
    return {
        .enunciado = Traduce(u"¿Cuál es el menor primo mayor que %1?"_s).arg(n),
        .forma = {FormaDeRespuesta::Entero, {}, {u"sigprimo"_s}},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(primo),
        .juzga = [n, primo](const RespuestaLeida &r) { return juzgaSiguiente(r, n, primo); },
        .pistas = {Traduce(u"Descarte los pares y los múltiplos de 3 y de 5; pruebe los demás con "
                           "los primos que siguen."_s),
                   Traduce(u"Basta probar con los primos hasta %1."_s).arg(raiz)},
        .solucion = [n, primo] { return pasosDeSiguiente(n, primo); }};
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDePrimos()
{
    return QList<TipoDeEjercicio>{{u"primos.esprimo"_s, u"¿Primo o compuesto?"_s, esPrimo},
                                  {u"primos.factores"_s, u"Factores primos"_s, factores},
                                  {u"primos.siguiente"_s, u"El primo siguiente"_s, siguiente}} +
           ejerciciosDeDivisores() + ejerciciosDeTestigos();
}
