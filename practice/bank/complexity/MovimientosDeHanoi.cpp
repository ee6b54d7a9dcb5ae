// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/complexity/MovimientosDeHanoi.h"

#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// How often disc d has moved after so many moves: every 2^d moves once, and first after half of
/// them.
qint64 movimientosDe(int d, qint64 hechos)
{
    return (hechos + potencia(2, d - 1)) / potencia(2, d);
}

Ejercicio vecesDeUnDisco(Sorteo &sorteo)
{
    const int n = static_cast<int>(sorteo.entre(6, 14));
    const int d = static_cast<int>(sorteo.entre(2, n - 2));
    const qint64 veces = potencia(2, n - d);
    return {
        .enunciado = Traduce(u"Con %1 discos, numerados desde el menor, ¿cuántas veces se mueve "
                             "el disco %2 en la solución más corta de las torres de Hanói?"_s)
                         .arg(n)
                         .arg(d),
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = numero(veces),
        .juzga =
            juicioDe(numero(veces),
                     {{numero(potencia(2, d - 1)), Traduce(u"Los ha numerado desde el mayor."_s),
                       u"al-reves"_s},
                      {numero(2 * veces), Traduce(u"Esas son las veces del disco anterior."_s),
                       u"un-disco"_s},
                      {numero(veces / 2), Traduce(u"Esas son las veces del disco siguiente."_s),
                       u"un-disco"_s},
                      {numero(2 * veces - 1),
                       Traduce(u"Esos son los movimientos de ese disco y los mayores juntos."_s),
                       u"juntos"_s},
                      {numero(potencia(2, n) - 1), Traduce(u"Esos son todos los movimientos."_s),
                       u"todos"_s}},
                     Traduce(u"No son esas veces: empiece por el disco mayor."_s)),
        .pistas = {Traduce(u"El disco mayor se mueve una vez. ¿Y el anterior?"_s),
                   Traduce(u"Cada disco se mueve el doble que el siguiente en tamaño: hay que "
                           "bajar %1 discos desde el %2."_s)
                       .arg(n - d)
                       .arg(n)},
        .solucion = [=] {
            return Pasos(QList<Paso>{
                {Traduce(u"El disco %1 se mueve una vez, y cada uno, el doble que el siguiente "
                         "en tamaño."_s)
                     .arg(n),
                 {u"2^{%1 - %2} = %3"_s.arg(n).arg(d).arg(veces)}}});
        }};
}

Ejercicio discoDelMovimiento(Sorteo &sorteo)
{
    const int n = static_cast<int>(sorteo.entre(7, 14));
    const int d = static_cast<int>(sorteo.entre(2, n - 2));
    const qint64 impar = 2 * sorteo.entre(1, potencia(2, n - d - 1) - 1) + 1;
    const qint64 j = impar * potencia(2, d - 1);
    return {
        .enunciado = Traduce(u"En la solución más corta de las torres de Hanói con %1 discos, "
                             "numerados desde el menor, ¿qué disco se mueve en el movimiento "
                             "%2?"_s)
                         .arg(n)
                         .arg(j),
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = numero(d),
        .juzga = juicioDe(
            numero(d),
            {{numero(n - d + 1), Traduce(u"Los ha numerado desde el mayor."_s), u"al-reves"_s},
             {numero(d - 1), Traduce(u"El menor es el disco 1, no el 0."_s), u"desde-cero"_s},
             {u"1"_s, Traduce(u"El disco 1 solo se mueve en los movimientos impares."_s),
              u"el-menor"_s}},
            Traduce(u"No es ese disco: mire cuándo se mueven el 1, el 2 y el 3."_s)),
        .pistas = {Traduce(u"El disco 1 se mueve una de cada dos veces; el 2, una de cada "
                           "cuatro."_s),
                   Traduce(u"Divida %1 entre 2 mientras sea par, y cuente las veces."_s).arg(j)},
        .solucion = [=] {
            return Pasos(QList<Paso>{
                {Traduce(u"El disco d se mueve en los movimientos que son 2 elevado a d − 1 por "
                         "un impar."_s),
                 {u"%1 = 2^{%2 - 1}*%3"_s.arg(j).arg(d).arg(impar)}}});
        }};
}

Ejercicio vecesHastaAhora(Sorteo &sorteo)
{
    const int n = static_cast<int>(sorteo.entre(7, 12));
    const int d = static_cast<int>(sorteo.entre(2, n - 3));
    const qint64 j = sorteo.entre(potencia(2, n - 2), potencia(2, n) - 2);
    const qint64 veces = movimientosDe(d, j);
    return {
        .enunciado = Traduce(u"De la solución más corta de las torres de Hanói con %1 discos, "
                             "numerados desde el menor, se han hecho los %2 primeros movimientos. "
                             "¿Cuántas veces se ha movido el disco %3?"_s)
                         .arg(n)
                         .arg(j)
                         .arg(d),
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = numero(veces),
        .juzga = juicioDe(
            numero(veces),
            {{numero(potencia(2, n - d)), Traduce(u"Esas son las veces hasta el final."_s),
              u"hasta-el-final"_s},
             {numero(j / potencia(2, d)),
              Traduce(u"El disco se mueve por primera vez a mitad de su ciclo, no al final."_s),
              u"sin-desfase"_s},
             {numero(potencia(2, n - d) - veces), Traduce(u"Esas son las veces que faltan."_s),
              u"las-que-faltan"_s},
             {numero(movimientosDe(d + 1, j)),
              Traduce(u"Esas son las veces del disco siguiente."_s), u"un-disco"_s},
             {numero(movimientosDe(d - 1, j)), Traduce(u"Esas son las veces del disco anterior."_s),
              u"un-disco"_s}},
            Traduce(u"No son esas veces: mire en qué movimientos le toca a ese disco."_s)),
        .pistas = {Traduce(u"El disco 1 se mueve en los movimientos 1, 3, 5…; el 2, en el 2, 6, "
                           "10…"_s),
                   Traduce(
                       u"El disco %1 se mueve por primera vez en el movimiento %2, y después cada "
                       "%3."_s)
                       .arg(d)
                       .arg(potencia(2, d - 1))
                       .arg(potencia(2, d))},
        .solucion = [=] {
            return Pasos(QList<Paso>{
                {Traduce(
                     u"El disco %1 se mueve por primera vez en el movimiento %2, y después cada "
                     "%3."_s)
                     .arg(d)
                     .arg(potencia(2, d - 1))
                     .arg(potencia(2, d)),
                 {u"floor({%1 + %2}/%3) = %4"_s.arg(j)
                      .arg(potencia(2, d - 1))
                      .arg(potencia(2, d))
                      .arg(veces)}}});
        }};
}

} // namespace

Ejercicio movimientosDeHanoi(int nivel, Sorteo &sorteo)
{
    return nivel == 1   ? vecesDeUnDisco(sorteo)
           : nivel == 2 ? discoDelMovimiento(sorteo)
                        : vecesHastaAhora(sorteo);
}
