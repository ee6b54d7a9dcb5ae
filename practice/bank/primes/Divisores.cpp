// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/primes/Divisores.h"

#include "practice/bank/shared/Factores.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "practice/bank/shared/PasosDelBanco.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

Fallo juzgaCuantos(const RespuestaLeida &r, qint64 desde, qint64 hasta)
{
    const qint64 cuantos = primosEntre(desde, hasta).size();
    const qint64 dado = numeroCorto(r).value_or(-1);
    const qint64 todos = hasta - desde + 1;
    if (dado == cuantos)
        return correcto();
    if (desde == 1 && dado == cuantos + 1)
        return Fallo::mal(Traduce(u"¿Ha contado el 1? No es primo."_s), u"cuenta-el-uno"_s);
    if (dado == todos / 2 || dado == (todos + 1) / 2)
        return Fallo::mal(Traduce(u"No todos los impares son primos."_s), u"impares"_s);
    if (dado == todos - cuantos)
        return Fallo::mal(Traduce(u"Esos son los que no son primos."_s), u"compuestos"_s);
    return Fallo::mal(
        Traduce(u"No son esos: tache los múltiplos de 2, de 3, de 5… y cuente los que "
                "quedan."_s),
        u"otra-cuenta"_s);
}

Pasos pasosDeCuantos(qint64 desde, qint64 hasta)
{
    const QList<qint64> primos = primosEntre(desde, hasta);
    QList<Paso> pasos;
    for (qint64 p = 2; p * p <= hasta; ++p) {
        if (esPrimoPequeno(p))
            pasos << pasoCon(Traduce(u"Se tachan los múltiplos de %1 desde su cuadrado."_s).arg(p),
                             {u"%1^2 = %2 <= %3"_s.arg(p).arg(p * p).arg(hasta)});
    }
    pasos << Paso{
        Traduce(u"Quedan %1: %2."_s).arg(QString::number(primos.size()), listaDe(primos))};
    return Pasos(pasos);
}

Ejercicio cuantos(int nivel, Sorteo &sorteo)
{
    const qint64 desde = nivel < 3 ? 1 : sorteo.entre(50, 300);
    const qint64 hasta = nivel == 1   ? sorteo.entre(20, 60)
                         : nivel == 2 ? sorteo.entre(61, 150)
                                      : desde + sorteo.entre(40, 70);
    const auto raiz = static_cast<qint64>(std::sqrt(hasta));
    const QString pregunta = desde == 1
                                 ? Traduce(u"¿Cuántos primos hay hasta %1, incluido?"_s).arg(hasta)
                                 : Traduce(u"¿Cuántos primos hay de %1 a %2, los dos incluidos?"_s)
                                       .arg(desde)
                                       .arg(hasta);
    return {
        .enunciado = pregunta,
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(primosEntre(desde, hasta).size()),
        .juzga = [desde, hasta](const RespuestaLeida &r) { return juzgaCuantos(r, desde, hasta); },
        .pistas = {Traduce(u"Haga la criba de Eratóstenes en ese tramo."_s),
                   Traduce(u"Basta tachar los múltiplos de los primos hasta %1."_s).arg(raiz)},
        .solucion = [desde, hasta] { return pasosDeCuantos(desde, hasta); }};
}

/// The sum of the powers p^0 … p^k.
qint64 sumaDePotencias(const PotenciaDePrimo &f)
{
    return (f.valor() * f.primo - 1) / (f.primo - 1);
}

/// Number and sum of the divisors.
std::pair<qint64, qint64> divisoresDe(const Factores &factores)
{
    std::pair<qint64, qint64> par{1, 1};
    for (const PotenciaDePrimo &f : factores) {
        par.first *= f.exponente + 1;
        par.second *= sumaDePotencias(f);
    }
    return par;
}

/// The count that forgets the power 0 of each prime, and the sum that forgets the exponents.
std::pair<qint64, qint64> divisoresOlvidados(const Factores &factores)
{
    std::pair<qint64, qint64> par{1, 1};
    for (const PotenciaDePrimo &f : factores) {
        par.first *= f.exponente;
        par.second *= f.primo + 1;
    }
    return par;
}

Fallo juzgaDivisores(const RespuestaLeida &r, const Factores &factores)
{
    if (r.numeros.size() != 2)
        return faltanNumeros(2);
    const auto [cuantos, suma] = divisoresDe(factores);
    const auto [sinUno, sinExponentes] = divisoresOlvidados(factores);
    const qint64 a = numeroCorto(r, 0).value_or(0), b = numeroCorto(r, 1).value_or(0);
    if ((a == cuantos && b == suma) || (a == suma && b == cuantos))
        return correcto();
    if (a == sinUno)
        return Fallo::mal(Traduce(u"Cada exponente cuenta con uno más: también está p⁰ = 1."_s),
                          u"exponentes-sin-uno"_s);
    if (b == sinExponentes)
        return Fallo::mal(Traduce(u"Para la suma ha olvidado los exponentes: faltan p², p³…"_s),
                          u"sin-exponente"_s);
    if (a == cuantos && b == suma - productoDe(factores))
        return Fallo::mal(Traduce(u"En la suma falta el mismo número, que también se divide."_s),
                          u"sin-el-propio"_s);
    if (a == cuantos)
        return Fallo::mal(Traduce(u"El número de divisores está bien; la suma no."_s), u"suma"_s);
    if (b == suma)
        return Fallo::mal(Traduce(u"La suma está bien; el número de divisores no."_s), u"numero"_s);
    return Fallo::mal(Traduce(u"Ni el número ni la suma: parta de los factores primos."_s),
                      u"ambos"_s);
}

Pasos pasosDeDivisores(const Factores &factores)
{
    const auto [cuantos, suma] = divisoresDe(factores);
    QStringList masUno, sumas;
    for (const PotenciaDePrimo &f : factores) {
        masUno << u"(%1 + 1)"_s.arg(f.exponente);
        QString potencias = u"1"_s;
        for (int k = 1; k <= f.exponente; ++k)
            potencias += u" + %1^%2"_s.arg(f.primo).arg(k);
        sumas << u'(' + potencias + u')';
    }
    return Pasos({pasoCon(Traduce(u"Se descompone el número."_s),
                          {u"%1 = %2"_s.arg(productoDe(factores)).arg(enFormula(factores))}),
                  pasoCon(Traduce(u"Un divisor toma cada primo con un exponente de 0 al suyo."_s),
                          {u"%1 = %2"_s.arg(masUno.join(u'*')).arg(cuantos)}),
                  pasoCon(Traduce(u"La suma es el producto de las sumas de potencias."_s),
                          {u"%1 = %2"_s.arg(sumas.join(u'*')).arg(suma)})});
}

Ejercicio divisores(int nivel, Sorteo &sorteo)
{
    const Factores deN = nivel == 1   ? factoresConPotencia({2, 3, 5, 7}, 2, 2, sorteo)
                         : nivel == 2 ? factoresConPotencia({2, 3, 5, 7, 11}, 3, 1, sorteo)
                                      : factoresConPotencia({2, 3, 5, 7, 11}, 3, 2, sorteo);
    const auto [cuantos, suma] = divisoresDe(deN);
    return {.enunciado = Traduce(u"¿Cuántos divisores positivos tiene %1, y cuánto suman?"_s)
                             .arg(productoDe(deN)),
            .forma = {FormaDeRespuesta::Lista},
            .ejemplo = Traduce(u"Primero cuántos, luego la suma"_s),
            .esperada = listaDe({cuantos, suma}),
            .juzga = [deN](const RespuestaLeida &r) { return juzgaDivisores(r, deN); },
            .pistas = {Traduce(u"Descomponga el número en factores primos."_s),
                       Traduce(u"Los exponentes de sus primos son %1."_s).arg([&deN] {
                           QList<qint64> exponentes;
                           for (const PotenciaDePrimo &f : deN)
                               exponentes << f.exponente;
                           return listaDe(exponentes);
                       }())},
            .solucion = [deN] { return pasosDeDivisores(deN); }};
}

Fallo juzgaUltimo(const RespuestaLeida &r, qint64 n, qint64 ultimo)
{
    const qint64 dado = numeroCorto(r).value_or(-1);
    if (dado == ultimo)
        return correcto();
    if (dado == n || dado == n - 1 || dado == n / 2)
        return Fallo::mal(
            Traduce(u"No hace falta ir tan lejos: los divisores van por parejas, y uno "
                    "de cada pareja no pasa de la raíz."_s),
            u"sin-raiz"_s);
    if (dado == static_cast<qint64>(std::sqrt(n)))
        return Fallo::mal(Traduce(u"Esa es la raíz sin decimales; se pide un primo."_s), u"raiz"_s);
    if (dado > 1 && dado < n && factoresDe(dado)[0].primo != dado)
        return Fallo::mal(Traduce(u"Ese no es primo: antes se ha probado con sus factores."_s),
                          u"compuesto"_s);
    return Fallo::mal(Traduce(u"El último es el mayor primo cuyo cuadrado no pasa de %1."_s).arg(n),
                      u"otro"_s);
}

/// A prime between the squares of two neighbouring primes.
Ejercicio ultimoDivisor(int nivel, Sorteo &sorteo)
{
    const std::array<std::pair<qint64, qint64>, 3> tramos{{{5, 17}, {19, 47}, {53, 103}}};
    const auto [desde, hasta] = tramos[static_cast<std::size_t>(nivel - 1)];
    const qint64 p = primoEntre(desde, hasta, sorteo);
    const auto &primos = primosPequenos();
    const qint64 q = *std::upper_bound(primos.begin(), primos.end(), p);
    const qint64 n = primoEntre(p * p, q * q, sorteo);
    return {.enunciado =
                Traduce(u"Para ver si %1 es primo se divide entre 2, 3, 5, 7… ¿Cuál es el último "
                        "primo entre el que hay que dividir, si ninguno lo divide?"_s)
                    .arg(n),
            .forma = {FormaDeRespuesta::Entero},
            .ejemplo = Traduce(u"Un número"_s),
            .esperada = QString::number(p),
            .juzga = [n, p](const RespuestaLeida &r) { return juzgaUltimo(r, n, p); },
            .pistas = {Traduce(u"Si n = a · b, uno de los dos no pasa de la raíz de n."_s),
                       Traduce(u"La raíz de %1 está entre %2 y %3."_s)
                           .arg(n)
                           .arg(static_cast<qint64>(std::sqrt(n)))
                           .arg(static_cast<qint64>(std::sqrt(n)) + 1)},
            .solucion =
                [n, p, q] {
                    return Pasos(
                        {pasoCon(Traduce(u"Un divisor mayor que la raíz tiene su pareja por "
                                         "debajo de ella."_s),
                                 {u"%1^2 = %2 < %3"_s.arg(p).arg(p * p).arg(n)}),
                         pasoCon(Traduce(u"El cuadrado del primo siguiente ya pasa."_s),
                                 {u"%1^2 = %2 > %3"_s.arg(q).arg(q * q).arg(n)})});
                }};
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDeDivisores()
{
    return {{u"primos.cuantos"_s, u"Cuántos primos hay"_s, cuantos},
            {u"primos.divisores"_s, u"Número y suma de divisores"_s, divisores},
            {u"primos.ultimodivisor"_s, u"El último divisor que hay que probar"_s, ultimoDivisor}};
}
