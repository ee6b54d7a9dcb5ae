// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/complexity/Crecimientos.h"

#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// From the slowest to the fastest.
const QStringList &ordenes()
{
    static const QStringList todos = {u"log n"_s, u"n"_s,  u"n log n"_s, u"n²"_s, u"n² log n"_s,
                                      u"n³"_s,    u"φⁿ"_s, u"2ⁿ"_s,      u"3ⁿ"_s, u"n!"_s};
    return todos;
}

/// A function whose order is asked for, with the orders that are mistaken for it.
struct Funcion
{
    QString texto;
    QString orden;
    QList<ErrorTipico> errores; ///< `numeros` is the order answered
    QStringList pistas;
    QList<Paso> pasos;
};

Ejercicio ejercicioDe(const Funcion &f)
{
    return {.enunciado = Traduce(u"¿Cómo crece %1? Dé su orden Θ."_s).arg(f.texto),
            .forma = {FormaDeRespuesta::Palabra, ordenes()},
            .ejemplo = Traduce(u"Un orden: √n"_s),
            .esperada = f.orden,
            .juzga =
                [f](const RespuestaLeida &respuesta) {
                    if (respuesta.palabra == f.orden)
                        return correcto();
                    for (const ErrorTipico &error : f.errores) {
                        if (error.numeros == respuesta.palabra)
                            return Fallo::mal(error.palabra, error.nota);
                    }
                    return Fallo::mal(Traduce(u"No crece así."_s));
                },
            .pistas = f.pistas,
            .solucion = [f] { return Pasos(f.pasos); }};
}

/// Three terms of different orders, the slower the larger their factors, in any order.
Funcion suma(Sorteo &sorteo)
{
    QList<qint64> cuales;
    for (qint64 i = 0; i < ordenes().size(); ++i)
        cuales << i;
    cuales = sorteo.barajada(cuales).first(3);
    std::sort(cuales.begin(), cuales.end());
    const QList<qint64> factores = {sorteo.entre(100, 999), sorteo.entre(20, 90),
                                    sorteo.entre(2, 9)};
    QStringList terminos;
    QStringList nombres;
    for (const int i : sorteo.barajada(QList<int>{0, 1, 2}))
        terminos << u"%1·%2"_s.arg(factores[i]).arg(ordenes()[cuales[i]]);
    for (const qint64 i : std::as_const(cuales))
        nombres << ordenes()[i];
    return {u"f(n) = "_s + terminos.join(u" + "_s),
            nombres[2],
            {{nombres[0], Traduce(u"Una constante, por grande que sea, no cambia el orden."_s),
              u"constante"_s},
             {nombres[1], Traduce(u"Ese sumando está, pero con n grande hay otro que manda."_s),
              u"otro-sumando"_s}},
            {Traduce(u"Una constante, por grande que sea, no cambia el orden."_s),
             Traduce(u"De menos a más: %1. Manda el último que aparece."_s)
                 .arg(ordenes().join(u", "_s))},
            {{Traduce(u"Las constantes no cuentan, y de una suma queda lo que más crece: entre %1, "
                      "es %2."_s)
                  .arg(nombres.join(u", "_s), nombres[2])}}};
}

/// The name of n^d, with a logarithm or without.
QString orden(int d, bool conLog)
{
    static const QStringList solas = {QString(), u"n"_s, u"n²"_s, u"n³"_s};
    static const QStringList conLogs = {u"log n"_s, u"n log n"_s, u"n² log n"_s, QString()};
    return conLog ? conLogs[d] : solas[d];
}

/// T(n) = a·T(n/b) + n^d with a power of b for a, so that the order of the leaves has a name.
Funcion partiendo(Sorteo &sorteo)
{
    struct Caso
    {
        int hojas, d;
    };
    static const QList<Caso> casos = {{0, 0}, {0, 1}, {0, 2}, {1, 0}, {1, 1}, {1, 2},
                                      {2, 0}, {2, 1}, {2, 2}, {3, 1}, {3, 2}, {1, 3}};
    const Caso caso = sorteo.de(casos);
    const int b = static_cast<int>(sorteo.entre(2, 4));
    const qint64 a = potencia(b, caso.hojas);
    const bool igual = caso.hojas == caso.d;
    const int manda = std::max(caso.hojas, caso.d);
    static const QStringList gastos = {u"1"_s, u"n"_s, u"n²"_s, u"n³"_s};
    QList<ErrorTipico> errores = {
        {orden(manda, !igual),
         igual ? Traduce(u"Todas las filas pesan igual, y hay muchas."_s)
               : Traduce(u"El logaritmo solo sale cuando todas las filas pesan igual."_s),
         igual ? u"sin-log"_s : u"con-log"_s},
        {orden(std::min(caso.hojas, caso.d), false),
         Traduce(u"Compare lo que pesa la raíz con lo que pesan las hojas."_s), u"la-otra"_s}};
    return {u"T(n) = %1T(n/%2) + %3"_s.arg(a == 1 ? QString() : QString::number(a))
                .arg(b)
                .arg(gastos[caso.d]),
            orden(manda, igual),
            errores,
            {Traduce(u"Teorema maestro: compare a con b elevado a d."_s),
             Traduce(u"a = %1, b = %2, d = %3: b elevado a d es %4."_s)
                 .arg(a)
                 .arg(b)
                 .arg(caso.d)
                 .arg(potencia(b, caso.d))},
            {{Traduce(u"a = %1, b = %2, d = %3: se compara a con la potencia de b."_s)
                  .arg(a)
                  .arg(b)
                  .arg(caso.d),
              {u"%1^%2 = %3"_s.arg(b).arg(caso.d).arg(potencia(b, caso.d)),
               u"%1 %2 %3^%4"_s.arg(a)
                   .arg(igual                 ? u"="_s
                        : caso.hojas > caso.d ? u">"_s
                                              : u"<"_s)
                   .arg(b)
                   .arg(caso.d)}},
             {(igual                 ? Traduce(u"Todas las filas pesan igual: el orden es %1."_s)
               : caso.hojas > caso.d ? Traduce(u"Mandan las hojas: el orden es %1."_s)
                                     : Traduce(u"Manda la raíz: el orden es %1."_s))
                  .arg(orden(manda, igual))}}};
}

/// What goes down by one, two or the half, with its order and why.
Funcion bajando(Sorteo &sorteo)
{
    struct Caso
    {
        QString texto, orden, otra, razon;
    };
    const QString c = QString::number(sorteo.entre(2, 60));
    const QList<Caso> casos = {
        {u"T(n) = T(n − 1) + %1"_s, u"n"_s, u"log n"_s, Traduce(u"Se suma lo mismo n veces."_s)},
        {u"T(n) = T(n − 1) + n + %1"_s, u"n²"_s, u"n"_s,
         Traduce(u"Es la suma de los n primeros números, y algo más."_s)},
        {u"T(n) = T(n − 1) + n² + %1"_s, u"n³"_s, u"n²"_s,
         Traduce(u"Es la suma de los n primeros cuadrados, y algo más."_s)},
        {u"T(n) = 2T(n − 1) + %1"_s, u"2ⁿ"_s, u"n"_s,
         Traduce(u"Cada unidad que sube n lo dobla."_s)},
        {u"T(n) = 3T(n − 1) + %1"_s, u"3ⁿ"_s, u"n"_s,
         Traduce(u"Cada unidad que sube n lo triplica."_s)},
        {u"T(n) = T(n − 1) + T(n − 2) + %1"_s, u"φⁿ"_s, u"2ⁿ"_s,
         Traduce(u"Es la regla de Fibonacci, que crece como las potencias de φ."_s)},
        {u"T(n) = nT(n − 1) + %1"_s, u"n!"_s, u"n²"_s,
         Traduce(u"Se multiplica por 2, por 3… por n."_s)},
        {u"T(n) = T(n/2) + %1"_s, u"log n"_s, u"n"_s,
         Traduce(u"Tantos pasos como veces se puede partir por la mitad."_s)}};
    const Caso caso = sorteo.de(casos);
    return {caso.texto.arg(c),
            caso.orden,
            {{caso.otra, Traduce(u"Escriba T(n) para unos cuantos n: ¿cómo pasa de uno a otro?"_s),
              u"otra-bajada"_s}},
            {Traduce(u"¿Cuántas veces se aplica la regla, y qué hace cada una: suma o "
                     "multiplica?"_s),
             caso.razon},
            {{caso.razon + u' ' + Traduce(u"El orden es %1."_s).arg(caso.orden)}}};
}

} // namespace

Ejercicio ordenDeCrecimiento(int nivel, Sorteo &sorteo)
{
    return ejercicioDe(nivel == 1   ? suma(sorteo)
                       : nivel == 2 ? partiendo(sorteo)
                                    : bajando(sorteo));
}
