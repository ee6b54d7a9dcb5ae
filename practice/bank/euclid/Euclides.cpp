// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/euclid/Euclides.h"

#include "lessons/euclid/PasosDeEuclides.h"
#include "practice/bank/euclid/Ecuaciones.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "practice/bank/shared/PasosDelBanco.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>
#include <numeric>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

TablaEuclides tablaDe(qint64 a, qint64 b, AlgoritmoEuclides algoritmo = AlgoritmoEuclides::Estandar)
{
    return {Moneda::deEntero(a), Moneda::deEntero(b), algoritmo};
}

Fallo juzgaMcd(const RespuestaLeida &r, qint64 a, qint64 b)
{
    const qint64 dado = numeroCorto(r).value_or(0);
    if (dado == std::gcd(a, b))
        return correcto();
    if (dado == std::lcm(a, b))
        return Fallo::mal(Traduce(u"Ese es el mínimo común múltiplo."_s), u"mcm"_s);
    const bool divide = dado != 0 && a % dado == 0 && b % dado == 0;
    if (divide && dado < 0)
        return Fallo::mal(Traduce(u"Divide a los dos, pero el máximo común divisor es positivo."_s),
                          u"signo"_s);
    if (divide)
        return Fallo::mal(Traduce(u"Divide a los dos, pero no es el mayor que lo hace."_s),
                          u"divisor-menor"_s);
    return Fallo::mal(Traduce(u"Ese número no divide a los dos."_s), u"no-divide"_s);
}

Ejercicio mcd(int nivel, Sorteo &sorteo)
{
    const qint64 d = sorteo.entre(2, 12 * nivel);
    const auto coprimos =
        coprimosDe(static_cast<int>(sorteo.entre(2, 3)) + 2 * (nivel - 1), sorteo);
    const qint64 a = coprimos.first * d;
    const qint64 b = coprimos.second * d;
    return {.enunciado = Traduce(u"¿Cuál es el máximo común divisor de %1 y %2?"_s).arg(a).arg(b),
            .forma = {FormaDeRespuesta::Entero, {}, {u"mcd"_s}},
            .ejemplo = Traduce(u"Un número"_s),
            .esperada = QString::number(d),
            .juzga = [a, b](const RespuestaLeida &r) { return juzgaMcd(r, a, b); },
            .pistas = {Traduce(u"Divida el mayor entre el menor y quédese con el resto."_s),
                       Traduce(u"El primer resto es %1: siga con %2 y %1."_s).arg(a % b).arg(b)},
            .solucion = [a, b] { return pasosDeEuclides(tablaDe(a, b)); }};
}

/// The columns of the table that a level asks for: quotients, remainders, both.
QStringList columnasDe(const TablaEuclides &tabla, int nivel)
{
    QStringList numeros;
    for (const DivisionEuclides &d : tabla.divisiones()) {
        if (nivel != 2)
            numeros << QString::number(d.cociente.entero());
        if (nivel != 1)
            numeros << QString::number(d.resto.entero());
    }
    return numeros;
}

/// What is said of a list of divisions that is not the right one; `porFila` numbers make one.
Fallo dondeFalla(const QStringList &dados, const QStringList &pedidos, int porFila)
{
    const auto [dado, pedido] =
        std::mismatch(dados.begin(), dados.end(), pedidos.begin(), pedidos.end());
    if (dado == dados.end())
        return Fallo::mal(
            Traduce(u"Hasta ahí está bien, pero se divide hasta que el resto es 0."_s),
            u"incompleta"_s);
    if (pedido == pedidos.end())
        return Fallo::mal(Traduce(u"Tras el resto 0 no hay más divisiones."_s), u"sobran"_s);
    return Fallo::mal(
        Traduce(u"Revise la división número %1."_s).arg((pedido - pedidos.begin()) / porFila + 1),
        u"division"_s);
}

Fallo juzgaDivisiones(const RespuestaLeida &r, qint64 a, qint64 b, int nivel)
{
    const TablaEuclides tabla = tablaDe(a, b);
    const QStringList pedidos = columnasDe(tabla, nivel);
    if (r.numeros == pedidos)
        return correcto();
    if (nivel != 3 && r.numeros == columnasDe(tabla, 3 - nivel))
        return Fallo::mal(Traduce(u"Esa es la otra columna: no confunda cocientes y restos."_s),
                          u"otra-columna"_s);
    return dondeFalla(r.numeros, pedidos, nivel == 3 ? 2 : 1);
}

QString preguntaDeDivisiones(int nivel)
{
    if (nivel == 1)
        return Traduce(u"Escriba en orden los cocientes de todas las divisiones del algoritmo de "
                       "Euclides para %1 y %2."_s);
    if (nivel == 2)
        return Traduce(u"Escriba en orden los restos de todas las divisiones del algoritmo de "
                       "Euclides para %1 y %2, con el 0 del final."_s);
    return Traduce(u"Escriba el cociente y el resto de cada división del algoritmo de Euclides "
                   "para %1 y %2: cociente, resto, cociente, resto…"_s);
}

Ejercicio divisiones(int nivel, Sorteo &sorteo)
{
    const auto coprimos = coprimosDe(static_cast<int>(sorteo.entre(2, 3)) + nivel, sorteo);
    const qint64 d = sorteo.entre(1, 6 * nivel);
    const qint64 a = coprimos.first * d;
    const qint64 b = coprimos.second * d;
    return {
        .enunciado = preguntaDeDivisiones(nivel).arg(a).arg(b),
        .forma = {FormaDeRespuesta::Lista},
        .ejemplo = Traduce(u"Números separados por comas"_s),
        .esperada = columnasDe(tablaDe(a, b), nivel).join(u", "_s),
        .juzga = [a, b, nivel](const RespuestaLeida &r) { return juzgaDivisiones(r, a, b, nivel); },
        .pistas = {Traduce(u"En cada fila se dividen el divisor y el resto de la anterior."_s),
                   Traduce(u"La primera división es %1 = %2 · %3 + %4."_s)
                       .arg(a)
                       .arg(a / b)
                       .arg(b)
                       .arg(a % b)},
        .solucion = [a, b] { return pasosDeEuclides(tablaDe(a, b)); }};
}

Fallo juzgaBezout(const RespuestaLeida &r, qint64 a, qint64 b)
{
    if (r.numeros.size() != 2)
        return faltanNumeros(2);
    const QString d = QString::number(std::gcd(a, b));
    const QString valor = combinacion(a, r.numeros[0], b, r.numeros[1]);
    if (valor == d)
        return correcto();
    if (valor == u'-' + d)
        return Fallo::mal(Traduce(u"Sale el opuesto: revise los signos."_s), u"signo"_s);
    if (combinacion(b, r.numeros[0], a, r.numeros[1]) == d)
        return Fallo::mal(Traduce(u"Los dos números están cambiados de sitio."_s), u"cambiados"_s);
    return Fallo::mal(Traduce(u"Con esos números sale %1."_s).arg(valor), u"otro-valor"_s);
}

Ejercicio bezout(int nivel, Sorteo &sorteo)
{
    const auto coprimos = coprimosDe(static_cast<int>(sorteo.entre(2, 3)) + nivel - 1, sorteo);
    const qint64 d = nivel == 1 ? 1 : sorteo.entre(1, 5 * nivel);
    const qint64 a = coprimos.first * d;
    const qint64 b = coprimos.second * d;
    const auto [s, t] = coeficientesDe(a, b);
    return {.enunciado =
                Traduce(u"Encuentre dos enteros s y t tales que %1 · s + %2 · t sea el máximo "
                        "común divisor de %1 y %2."_s)
                    .arg(a)
                    .arg(b),
            .forma = {FormaDeRespuesta::Lista},
            .ejemplo = Traduce(u"Primero s y luego t"_s),
            .esperada = listaDe({s, t}),
            .juzga = [a, b](const RespuestaLeida &r) { return juzgaBezout(r, a, b); },
            .pistas =
                {Traduce(u"Haga el algoritmo de Euclides y despeje los restos de abajo arriba."_s),
                 Traduce(u"El máximo común divisor es %1, el último resto que no es 0."_s).arg(d)},
            .solucion = [a, b] { return pasosDeEuclides(tablaDe(a, b)); }};
}

/// Two numbers for whose divisions with least absolute remainders so many are needed, one at least
/// with a negative remainder and none with a tie: each number is more than twice the next.
std::pair<qint64, qint64> conRestosMinimos(int divisiones, qint64 d, Sorteo &sorteo)
{
    qint64 b = d;
    qint64 a = d * sorteo.entre(3, 5);
    const qint64 negativa = sorteo.entre(1, divisiones - 1);
    for (int i = 1; i < divisiones; ++i) {
        const bool menos = i == negativa || sorteo.moneda();
        const qint64 q = sorteo.entre(menos ? 3 : 2, 5);
        b = std::exchange(a, q * a + (menos ? -b : b));
    }
    return {a, b};
}

QStringList absolutos(QStringList numeros)
{
    return numeros.replaceInStrings(u"-"_s, QString());
}

Fallo juzgaRestosMinimos(const RespuestaLeida &r, qint64 a, qint64 b)
{
    const QStringList pedidos = columnasDe(tablaDe(a, b, AlgoritmoEuclides::RestosReducidos), 2);
    if (r.numeros == pedidos)
        return correcto();
    if (absolutos(r.numeros) == absolutos(pedidos))
        return Fallo::mal(
            Traduce(u"Salvo el signo son esos: algún resto es negativo y otros no."_s),
            u"signos"_s);
    if (r.numeros == columnasDe(tablaDe(a, b), 2))
        return Fallo::mal(Traduce(u"Esos son los restos positivos: cuando un resto pasa de la "
                                  "mitad del divisor se toma el cociente siguiente."_s),
                          u"ordinarios"_s);
    return dondeFalla(r.numeros, pedidos, 1);
}

Ejercicio restosMinimos(int nivel, Sorteo &sorteo)
{
    const qint64 d = sorteo.entre(1, 4 * nivel);
    const auto numeros = conRestosMinimos(nivel + 2, d, sorteo);
    const qint64 a = numeros.first;
    const qint64 b = numeros.second;
    const TablaEuclides tabla = tablaDe(a, b, AlgoritmoEuclides::RestosReducidos);
    return {.enunciado = Traduce(u"Escriba en orden, con su signo y hasta el 0, los restos de "
                                 "menor valor absoluto del algoritmo de Euclides para %1 y %2. El "
                                 "divisor siguiente es el valor absoluto del resto."_s)
                             .arg(a)
                             .arg(b),
            .forma = {FormaDeRespuesta::Lista},
            .ejemplo = Traduce(u"Números separados por comas"_s),
            .esperada = columnasDe(tabla, 2).join(u", "_s),
            .juzga = [a, b](const RespuestaLeida &r) { return juzgaRestosMinimos(r, a, b); },
            .pistas = {Traduce(u"Si el resto pasa de la mitad del divisor, sume 1 al cociente: el "
                               "resto será negativo."_s),
                       Traduce(u"El primer resto es %1."_s)
                           .arg(tabla.divisiones().constFirst().resto.entero())},
            .solucion = [tabla] { return pasosDeEuclides(tabla); }};
}

Fallo juzgaMcm(const RespuestaLeida &r, qint64 a, qint64 b)
{
    const qint64 dado = numeroCorto(r).value_or(0);
    if (dado == std::lcm(a, b))
        return correcto();
    if (dado == a * b)
        return Fallo::mal(Traduce(u"El producto es un múltiplo común, pero tienen divisores "
                                  "comunes y hay uno menor."_s),
                          u"producto"_s);
    if (dado == std::gcd(a, b))
        return Fallo::mal(Traduce(u"Ese es el máximo común divisor."_s), u"mcd"_s);
    if (dado > 0 && dado % a == 0 && dado % b == 0)
        return Fallo::mal(Traduce(u"Es múltiplo de los dos, pero no el menor."_s), u"multiplo"_s);
    return Fallo::mal(Traduce(u"Ese número no es múltiplo positivo de los dos."_s),
                      u"no-multiplo"_s);
}

Ejercicio mcm(int nivel, Sorteo &sorteo)
{
    const auto coprimos = coprimosDe(1 + nivel, sorteo);
    const qint64 d = sorteo.entre(2, 8 * nivel);
    const qint64 a = coprimos.first * d;
    const qint64 b = coprimos.second * d;
    return {.enunciado = Traduce(u"¿Cuál es el mínimo común múltiplo de %1 y %2?"_s).arg(a).arg(b),
            .forma = {FormaDeRespuesta::Entero, {}, {u"mcm"_s}},
            .ejemplo = Traduce(u"Un número"_s),
            .esperada = QString::number(std::lcm(a, b)),
            .juzga = [a, b](const RespuestaLeida &r) { return juzgaMcm(r, a, b); },
            .pistas = {Traduce(u"El producto de dos números es el de su máximo común divisor por "
                               "su mínimo común múltiplo."_s),
                       Traduce(u"El máximo común divisor es %1."_s).arg(d)},
            .solucion =
                [a, b, d] {
                    return seguidos(
                        pasosDeEuclides(tablaDe(a, b)),
                        {pasoCon(Traduce(u"Se divide el producto entre el máximo común divisor."_s),
                                 {Traduce(u"mcm"_s) +
                                  u"(%1; %2) = {%1*%2}/%3 = %4"_s.arg(a).arg(b).arg(d).arg(a / d *
                                                                                           b)})});
                }};
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDeEuclides()
{
    return QList<TipoDeEjercicio>{
               {u"euclides.mcd"_s, u"Máximo común divisor"_s, mcd},
               {u"euclides.divisiones"_s, u"Cocientes y restos"_s, divisiones},
               {u"euclides.bezout"_s, u"Coeficientes de Bezout"_s, bezout},
               {u"euclides.restosminimos"_s, u"Restos de menor valor absoluto"_s, restosMinimos},
               {u"euclides.mcm"_s, u"Mínimo común múltiplo"_s, mcm}} +
           ejerciciosDeEcuaciones();
}
