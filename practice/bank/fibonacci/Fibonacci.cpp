// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/fibonacci/Fibonacci.h"

#include "lessons/fibonacci/NumeroDeFibonacci.h"
#include "lessons/fibonacci/PasosDeIdentidad.h"
#include "lessons/fibonacci/PasosDeZeckendorf.h"
#include "practice/bank/fibonacci/SumasDeFibonacci.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "shell/core/ModGlobal.h"

#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

QString F(int n)
{
    return numeroDeFibonacci(n);
}

Fallo juzgaSuma(const RespuestaLeida &respuesta, int n)
{
    switch (juzgaZeckendorf(respuesta.numeros.join(u'+'), n)) {
    case FalloZeckendorf::Ninguno:
        return correcto();
    case FalloZeckendorf::NoEsSuma:
        break;
    case FalloZeckendorf::Cero:
        return Fallo::mal(Traduce(u"El 0 no cuenta como sumando."_s), u"cero"_s);
    case FalloZeckendorf::NoEsFibonacci:
        return Fallo::mal(Traduce(u"Algún sumando no es un número de Fibonacci."_s),
                          u"no-fibonacci"_s);
    case FalloZeckendorf::Consecutivos:
        return Fallo::mal(Traduce(u"Hay dos sumandos iguales o consecutivos."_s),
                          u"consecutivos"_s);
    case FalloZeckendorf::OtraSuma:
        return Fallo::mal(Traduce(u"Esos números no suman %1."_s).arg(n), u"otra-suma"_s);
    }
    return Fallo::mal(Traduce(u"Se pide una suma de números de Fibonacci."_s), u"no-suma"_s);
}

/// Indices of which no two are neighbours: so the number is known with its only representation.
QList<int> indicesSeparados(int nivel, Sorteo &sorteo)
{
    const qint64 cuantos = sorteo.entre(nivel + 1, nivel + 2);
    QList<int> indices = {static_cast<int>(sorteo.entre(2, 4))};
    while (indices.size() < cuantos)
        indices << indices.back() + static_cast<int>(sorteo.entre(2, 4));
    return indices;
}

Ejercicio zeckendorf(int nivel, Sorteo &sorteo)
{
    const QList<int> indices = indicesSeparados(nivel, sorteo);
    int n = 0;
    QStringList sumandos;
    for (const int i : indices) {
        n += static_cast<int>(fibonacciDe(i));
        sumandos.prepend(F(i));
    }
    return {.enunciado = Traduce(u"Escriba %1 como suma de números de Fibonacci distintos, sin dos "
                                 "consecutivos."_s)
                             .arg(n),
            .forma = {FormaDeRespuesta::Suma},
            .ejemplo = Traduce(u"Una suma: 34 + 13"_s),
            .esperada = sumandos.join(u" + "_s),
            .juzga = [n](const RespuestaLeida &r) { return juzgaSuma(r, n); },
            .pistas = {Traduce(u"Reste el mayor número de Fibonacci que quepa, y siga con lo que "
                               "queda."_s),
                       Traduce(u"El mayor que cabe es %1. Quedan %2."_s)
                           .arg(sumandos[0])
                           .arg(n - sumandos[0].toInt())},
            .solucion =
                [n] { return pasosDeZeckendorf(representacionZeckendorf(QString::number(n))); }};
}

/// The row of the greatest common divisor in the table of identities.
constexpr int FilaDelMcd = 1;

Ejercicio mcdDeFibonacci(int nivel, Sorteo &sorteo)
{
    static const QList<QList<std::pair<int, int>>> razones = {
        {{2, 3}, {3, 2}, {3, 4}, {4, 3}, {2, 5}, {5, 2}, {3, 5}},
        {{3, 5}, {5, 3}, {4, 7}, {7, 4}, {5, 8}, {7, 3}, {3, 8}},
        {{5, 8}, {8, 5}, {7, 11}, {11, 7}, {9, 13}, {12, 7}, {8, 13}}};
    const int d = static_cast<int>(sorteo.entre(4 + 3 * (nivel - 1), 7 + 4 * (nivel - 1)));
    const auto razon = sorteo.de(razones[nivel - 1]);
    const int a = d * razon.first;
    const int b = d * razon.second;
    return {
        .enunciado = Traduce(u"¿Cuál es el máximo común divisor de F(%1) y F(%2)?"_s).arg(a).arg(b),
        .forma = {FormaDeRespuesta::Entero, {}, {u"mcd"_s}},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = F(d),
        .juzga = juicioDe(
            F(d),
            {{QString::number(d), Traduce(u"Ese es el máximo común divisor de los índices."_s),
              u"indice"_s},
             {u"1"_s, Traduce(u"No son primos entre sí: mire si lo son los índices."_s),
              u"coprimos"_s},
             {F(qAbs(a - b)), Traduce(u"Ha restado los índices una sola vez."_s), u"una-resta"_s},
             {F(qMin(a, b)), Traduce(u"El menor de los dos no divide al otro."_s), u"el-menor"_s}},
            Traduce(u"No es ese: el mcd de dos números de Fibonacci también es uno de ellos."_s)),
        .pistas =
            {Traduce(u"El mcd de dos números de Fibonacci es el de otro índice, que sale de "
                     "los dos."_s),
             Traduce(u"mcd(%1, %2) = %3. ¿Qué número de Fibonacci es?"_s).arg(a).arg(b).arg(d)},
        .solucion = [a, b] { return pasosDeIdentidad(FilaDelMcd, a, b); }};
}

Pasos pasosDeDoblado(int n, int desde)
{
    const QString a = F(n);
    const QString b = F(n + 1);
    const Paso par{Traduce(u"F(2n) = F(n) · (2 · F(n + 1) − F(n))"_s),
                   {u"F(%1) = %2*(2*%3 - %2) = %4"_s.arg(2 * n).arg(a, b, F(2 * n))}};
    const Paso impar{Traduce(u"F(2n + 1) = F(n)² + F(n + 1)²"_s),
                     {u"F(%1) = %2^2 + %3^2 = %4"_s.arg(2 * n + 1).arg(a, b, F(2 * n + 1))}};
    if (desde == 2 * n)
        return Pasos(QList<Paso>{par, impar});
    return Pasos(QList<Paso>{
        par,
        impar,
        {Traduce(u"El siguiente es la suma de los dos."_s),
         {u"F(%1) = %2 + %3 = %4"_s.arg(2 * n + 2).arg(F(2 * n), F(2 * n + 1), F(2 * n + 2))}}});
}

Ejercicio doblado(int nivel, Sorteo &sorteo)
{
    const int n = static_cast<int>(sorteo.entre(6 * nivel - 1, 6 * nivel + 6));
    const int desde = 2 * n + static_cast<int>(sorteo.entre(0, 1));
    const QString esperada = F(desde) + u' ' + F(desde + 1);
    const auto par = [](qint64 a, qint64 b) { return u"%1 %2"_s.arg(a).arg(b); };
    const qint64 a = fibonacciDe(n);
    const qint64 b = fibonacciDe(n + 1);
    return {
        .enunciado = Traduce(u"F(%1) = %2 y F(%3) = %4. Halle F(%5) y F(%6)."_s)
                         .arg(n)
                         .arg(a)
                         .arg(n + 1)
                         .arg(b)
                         .arg(desde)
                         .arg(desde + 1),
        .forma = {FormaDeRespuesta::Lista, {}, {u"fib"_s}},
        .ejemplo = Traduce(u"Dos números: 3, 5"_s),
        .esperada = F(desde) + u", "_s + F(desde + 1),
        .juzga = juicioSinOrden(
            esperada,
            {{par(2 * a, 2 * b), Traduce(u"Se dobla el índice, no el valor."_s), u"dobla-valor"_s},
             {par(a * a, b * b), Traduce(u"Doblar el índice no es elevar al cuadrado."_s),
              u"cuadrados"_s},
             {par(fibonacciDe(desde + 1), fibonacciDe(desde + 2)),
              Traduce(u"Esos son los de los índices siguientes."_s), u"un-lugar"_s},
             {par(fibonacciDe(desde - 1), fibonacciDe(desde)),
              Traduce(u"Esos son los de los índices anteriores."_s), u"un-lugar"_s}},
            Traduce(u"No son esos dos. Repase las fórmulas de doblar."_s)),
        .pistas = {Traduce(
                       u"F(2n) = F(n) · (2 · F(n + 1) − F(n)), F(2n + 1) = F(n)² + F(n + 1)²."_s),
                   Traduce(u"Con n = %1 las fórmulas dan F(%2) y F(%3); cada uno es la suma de los "
                           "dos anteriores."_s)
                       .arg(n)
                       .arg(2 * n)
                       .arg(2 * n + 1)},
        .solucion = [n, desde] { return pasosDeDoblado(n, desde); }};
}

/// The remainders of F(0), F(1), … modulo m up to the end of the first period.
QList<qint64> vueltaDe(qint64 m)
{
    QList<qint64> restos = {0, 1};
    do
        restos << (restos.back() + restos[restos.size() - 2]) % m;
    while (restos[restos.size() - 2] != 0 || restos.back() != 1);
    return restos.first(restos.size() - 2);
}

Fallo juzgaResto(const RespuestaLeida &respuesta, qint64 n, qint64 m)
{
    const QList<qint64> vuelta = vueltaDe(m);
    const qint64 resto = vuelta[n % vuelta.size()];
    const qint64 dado = numeroDe(respuesta);
    if (dado == resto)
        return correcto();
    if (dado >= 0 && dado % m == resto)
        return Fallo::mal(
            Traduce(u"Es congruente con F(n), pero el resto está entre 0 y %1."_s).arg(m - 1),
            u"sin-reducir"_s);
    if (dado == n % m)
        return Fallo::mal(Traduce(u"Ese es el resto del índice, no el de F(n)."_s),
                          u"resto-del-indice"_s);
    if (dado == fibonacciDe(static_cast<int>(n % m)) % m)
        return Fallo::mal(Traduce(u"Los índices no se reducen módulo m, sino módulo el periodo."_s),
                          u"indice-modulo-m"_s);
    if (dado == n % vuelta.size())
        return Fallo::mal(Traduce(u"Ese es el índice ya reducido: falta su número de Fibonacci."_s),
                          u"indice-reducido"_s);
    return Fallo::mal(Traduce(u"No es ese. Cuente bien cuánto dura una vuelta de los restos."_s));
}

Pasos pasosDeVuelta(qint64 n, qint64 m)
{
    const QList<qint64> vuelta = vueltaDe(m);
    const qint64 k = vuelta.size();
    return Pasos(QList<Paso>{
        {Traduce(u"Los restos de F(0), F(1), F(2)… son %1, y vuelven a empezar con 0, 1."_s)
             .arg(listaDe(vuelta))},
        {Traduce(u"Se repiten de %1 en %1: el índice cuenta módulo %1."_s).arg(k),
         {u"%1 = %2*%3 + %4"_s.arg(n).arg(n / k).arg(k).arg(n % k)}},
        {Traduce(u"El resto es el que está en el lugar %1, contando desde el 0."_s).arg(n % k),
         {u"F(%1) == F(%2) == %3 (mod %4)"_s.arg(n).arg(n % k).arg(vuelta[n % k]).arg(m)}}});
}

Ejercicio restoDeFibonacci(int nivel, Sorteo &sorteo)
{
    static const QList<QList<qint64>> modulos = {
        {3, 4, 5, 7, 8}, {6, 9, 11, 12, 13, 16, 18, 21}, {10, 14, 15, 17, 19, 22, 23, 28, 29, 34}};
    const qint64 m = sorteo.de(modulos[nivel - 1]);
    const qint64 n = sorteo.entre(100, potencia(10, nivel + 2));
    const qint64 periodo = vueltaDe(m).size();
    return {
        .enunciado = Traduce(u"¿Qué resto deja F(%1) al dividirlo entre %2?"_s).arg(n).arg(m),
        .forma = {FormaDeRespuesta::Entero, {}, {u"fib mod"_s}},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(vueltaDe(m)[n % periodo]),
        .juzga = [n, m](const RespuestaLeida &r) { return juzgaResto(r, n, m); },
        .pistas = {Traduce(u"Escriba los restos de F(0), F(1)… hasta que vuelvan a salir un 0 y "
                           "un 1 seguidos."_s),
                   Traduce(u"Los restos se repiten de %1 en %1: divida el índice entre %1."_s)
                       .arg(periodo)},
        .solucion = [n, m] { return pasosDeVuelta(n, m); }};
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDeFibonacci()
{
    return {{u"fibonacci.zeckendorf"_s, u"Suma de Zeckendorf"_s, zeckendorf},
            {u"fibonacci.mcd"_s, u"El mcd de dos números de Fibonacci"_s, mcdDeFibonacci},
            {u"fibonacci.doblado"_s, u"Doblar el índice"_s, doblado},
            {u"fibonacci.modulo"_s, u"El resto de un número de Fibonacci"_s, restoDeFibonacci},
            {u"fibonacci.sumas"_s, u"Sumas de números de Fibonacci"_s, sumaDeFibonacci}};
}
