// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/functions/Ackermann.h"

#include "lessons/recursion/functions/PasosDeAck.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Ack(m, n) by the formulas of its rows, m from 0 to 3.
qint64 valorDeAck(qint64 m, qint64 n)
{
    switch (m) {
    case 0:
        return n + 1;
    case 1:
        return n + 2;
    case 2:
        return 2 * n + 3;
    default:
        return potencia(2, static_cast<int>(n) + 3) - 3;
    }
}

QString formulaDeAck(qint64 m, qint64 n)
{
    const QString cuenta = m < 2    ? u"%1 + %2"_s.arg(n).arg(m + 1)
                           : m == 2 ? u"2*%1 + 3"_s.arg(n)
                                    : u"2^{%1 + 3} - 3"_s.arg(n);
    return u"Ack(%1; %2) = %3 = %4"_s.arg(m).arg(n).arg(cuenta).arg(valorDeAck(m, n));
}

QList<ErrorTipico> erroresDeAck(qint64 m, qint64 n)
{
    QList<ErrorTipico> errores = {
        {numero(valorDeAck(m, n + 1)), Traduce(u"Ese es el valor siguiente de la fila."_s),
         u"un-lugar"_s},
        {numero(valorDeAck(m - 1, n)), Traduce(u"Ese valor es de la fila anterior."_s), u"fila"_s},
        {numero(valorDeAck(m - 1, valorDeAck(m - 1, n))),
         Traduce(u"Ha aplicado la fila anterior dos veces: el argumento de dentro es Ack(m, n − "
                 "1)."_s),
         u"dos-veces"_s}};
    if (n > 0)
        errores << ErrorTipico{numero(valorDeAck(m, n - 1)),
                               Traduce(u"Ese es el valor anterior de la fila."_s), u"un-lugar"_s};
    if (n < 4)
        errores << ErrorTipico{numero(valorDeAck(n, m)),
                               Traduce(u"Ha cambiado un argumento por el otro."_s), u"cambiados"_s};
    return errores;
}

Ejercicio ackDe(qint64 m, qint64 n, const QStringList &pistas, std::function<Pasos()> solucion)
{
    return {.enunciado = Traduce(u"¿Cuánto vale Ack(%1, %2)?"_s).arg(m).arg(n),
            .forma = {FormaDeRespuesta::Entero},
            .ejemplo = Traduce(u"Un número"_s),
            .esperada = numero(valorDeAck(m, n)),
            .juzga = juicioDe(numero(valorDeAck(m, n)), erroresDeAck(m, n),
                              Traduce(u"No es ese: escriba las llamadas una por una."_s)),
            .pistas = pistas,
            .solucion = std::move(solucion)};
}

Ejercicio ackPorLlamadas(Sorteo &sorteo)
{
    const bool primera = sorteo.moneda();
    const qint64 m = primera ? 1 : 2;
    const qint64 n = sorteo.entre(primera ? 2 : 1, primera ? 7 : 4);
    return ackDe(
        m, n,
        {u"Ack(0, n) = n + 1, Ack(m, 0) = Ack(m − 1, 1), Ack(m, n) = Ack(m − 1, Ack(m, n − "
         "1))"_s,
         Traduce(u"Ack(%1, 0) = %2 y Ack(%1, 1) = %3."_s)
             .arg(m)
             .arg(valorDeAck(m, 0))
             .arg(valorDeAck(m, 1))},
        [m, n] {
            constexpr std::int32_t Corte = 1000;
            return pasosDeAck({static_cast<std::int32_t>(m), static_cast<std::int32_t>(n)}, Corte);
        });
}

Ejercicio ackPorFilas(Sorteo &sorteo)
{
    const qint64 m = sorteo.entre(2, 3);
    const qint64 n = m == 2 ? sorteo.entre(10, 40) : sorteo.entre(3, 7);
    return ackDe(
        m, n,
        {Traduce(u"Cada fila tiene una fórmula: la 1 es n + 2. Calcule los primeros valores "
                 "de la que se pide."_s),
         m == 2 ? Traduce(u"En la fila 2 cada valor pasa en 2 del anterior, y el primero es "
                          "3."_s)
                : Traduce(u"En la fila 3 cada valor pasa en 3 del doble del anterior, y el "
                          "primero es 5."_s)},
        [m, n] {
            return Pasos(QList<Paso>{
                {m == 2 ? Traduce(u"La fila 2 es 2n + 3, porque Ack(1, n) = n + 2 se aplica "
                                  "una y otra vez."_s)
                        : Traduce(u"La fila 3 es una potencia de 2 menos 3, porque "
                                  "Ack(2, n) = 2n + 3 se aplica una y otra vez."_s),
                 {formulaDeAck(m, n)}}});
        });
}

Ejercicio ackAnidado(Sorteo &sorteo)
{
    const qint64 m = sorteo.entre(1, 3);
    const qint64 j = sorteo.entre(1, 2);
    const qint64 k = m == 3 ? sorteo.entre(0, j == 1 ? 4 : 2) : sorteo.entre(4, 20);
    const qint64 dentro = valorDeAck(j, k);
    const qint64 valor = valorDeAck(m, dentro);
    return {.enunciado = Traduce(u"¿Cuánto vale Ack(%1, Ack(%2, %3))?"_s).arg(m).arg(j).arg(k),
            .forma = {FormaDeRespuesta::Entero},
            .ejemplo = Traduce(u"Un número"_s),
            .esperada = numero(valor),
            .juzga = juicioDe(
                numero(valor),
                {{numero(dentro), Traduce(u"Ese es el valor de dentro."_s), u"solo-dentro"_s},
                 {numero(valorDeAck(m, k)), Traduce(u"Ha olvidado la función de dentro."_s),
                  u"solo-fuera"_s},
                 {numero(valorDeAck(m, dentro + 1)),
                  Traduce(u"Ese es el valor siguiente de la fila."_s), u"un-lugar"_s},
                 {numero(valorDeAck(m, dentro - 1)),
                  Traduce(u"Ese es el valor anterior de la fila."_s), u"un-lugar"_s},
                 {numero(valorDeAck(j, valorDeAck(m, qMin<qint64>(k, 20)))),
                  Traduce(u"Ha cambiado el orden de las dos funciones."_s), u"cambiados"_s}},
                Traduce(u"No es ese: calcule primero la de dentro."_s)),
            .pistas = {Traduce(u"Primero la de dentro; cada fila tiene una fórmula."_s),
                       Traduce(u"Ack(%1, %2) = %3."_s).arg(j).arg(k).arg(dentro)},
            .solucion = [=] {
                return Pasos(QList<Paso>{
                    {Traduce(u"La de dentro, por la fórmula de su fila."_s), {formulaDeAck(j, k)}},
                    {Traduce(u"Y la de fuera."_s), {formulaDeAck(m, dentro)}}});
            }};
}

} // namespace

Ejercicio valorDeAckermann(int nivel, Sorteo &sorteo)
{
    return nivel == 1   ? ackPorLlamadas(sorteo)
           : nivel == 2 ? ackPorFilas(sorteo)
                        : ackAnidado(sorteo);
}
