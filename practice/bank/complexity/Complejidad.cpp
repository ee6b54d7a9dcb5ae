// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/complexity/Complejidad.h"

#include "lessons/complexity/PasosDeLlamadas.h"
#include "practice/bank/complexity/Crecimientos.h"
#include "practice/bank/complexity/MovimientosDeHanoi.h"
#include "practice/bank/complexity/Recurrencias.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "shell/core/ModGlobal.h"

#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A function that answers at once below `caso`, and else calls itself with the arguments that
/// these steps leave.
struct Llamadora
{
    int caso;
    QList<int> bajadas;

    /// How many calls g(0) … g(n) make, each itself included.
    QList<qint64> llamadas(int n) const
    {
        QList<qint64> todas;
        for (int k = 0; k <= n; ++k) {
            qint64 suyas = 1;
            for (const int b : bajadas)
                suyas += k < caso ? 0 : todas[k - b];
            todas << suyas;
        }
        return todas;
    }

    /// The same of g(n) with a memory: each value that is computed calls for others once.
    qint64 conMemoria(int n) const
    {
        QSet<int> calculados;
        QList<int> pendientes = {n};
        while (!pendientes.isEmpty()) {
            const int k = pendientes.takeLast();
            if (k < caso || calculados.contains(k))
                continue;
            calculados << k;
            for (const int b : bajadas)
                pendientes << k - b;
        }
        return 1 + bajadas.size() * calculados.size();
    }

    QString texto() const
    {
        QStringList partes;
        for (const int b : bajadas)
            partes << u"g(n − %1)"_s.arg(b);
        return Traduce(u"Una función g(n) no llama a nadie si n < %1; si no, llama a %2."_s)
            .arg(numero(caso), partes.join(Traduce(u" y a "_s)));
    }
};

Llamadora llamadoraDe(int nivel, Sorteo &sorteo)
{
    if (nivel == 1)
        return {2, {1, 2}};
    const int a = static_cast<int>(sorteo.entre(1, 2));
    const int b = a + static_cast<int>(sorteo.entre(a == 1 ? 2 : 1, 2));
    return nivel == 2 ? Llamadora{b, {a, b}} : Llamadora{b + 1, {a, b, b + 1}};
}

QString preguntaDe(int nivel, const Llamadora &g, const QString &cortas)
{
    return nivel == 1 ? Traduce(u"La forma recursiva de F(n) no llama a nadie si n < 2; si no, "
                                "llama a F(n − 1) y a F(n − 2)."_s) +
                            u' ' + QString(cortas).replace(u"g("_s, u"F("_s)
                      : g.texto() + u' ' + cortas;
}

/// The calls of each argument from those before it.
Pasos pasosDeLlamadora(const Llamadora &g, int n)
{
    const QList<qint64> todas = g.llamadas(n);
    QList<Paso> pasos = {{Traduce(u"Por debajo de %1 hay una sola llamada."_s).arg(g.caso)}};
    for (int k = g.caso; k <= n; ++k) {
        QString suma = u"1"_s;
        for (const int b : g.bajadas)
            suma += u" + %1"_s.arg(todas[k - b]);
        pasos << Paso{Traduce(u"g(%1): la suya y las de las que hace."_s).arg(k),
                      {u"L(%1) = %2 = %3"_s.arg(k).arg(suma).arg(todas[k])}};
    }
    return Pasos(pasos);
}

Ejercicio llamadas(int nivel, Sorteo &sorteo)
{
    const Llamadora g = llamadoraDe(nivel, sorteo);
    const int n = static_cast<int>(nivel == 1 ? sorteo.entre(6, 25) : sorteo.entre(8, 13));
    const QList<qint64> todas = g.llamadas(n + 1);
    return {
        .enunciado = preguntaDe(
            nivel, g,
            Traduce(u"¿Cuántas llamadas hacen falta en total para g(%1), contando la primera?"_s)
                .arg(n)),
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = numero(todas[n]),
        .juzga = juicioDe(
            numero(todas[n]),
            {{numero(todas[n] - 1), Traduce(u"Falta la primera llamada."_s), u"sin-la-primera"_s},
             {numero(todas[n] + 1), Traduce(u"Ha contado una llamada dos veces."_s), u"una-mas"_s},
             {numero(g.conMemoria(n)), Traduce(u"Esas son las llamadas con memoria."_s),
              u"con-memoria"_s},
             {numero(todas[n - 1]), Traduce(u"Esas son las del argumento anterior."_s),
              u"un-lugar"_s},
             {numero(todas[n + 1]), Traduce(u"Esas son las del argumento siguiente."_s),
              u"un-lugar"_s},
             {numero(todas[n] - (todas[n] - 1) / g.bajadas.size()),
              Traduce(u"Cuente también las llamadas que hacen otras, no solo las últimas."_s),
              u"solo-hojas"_s}},
            Traduce(u"No es ese número: cuente las de los argumentos pequeños y suba."_s)),
        .pistas = {Traduce(u"Las llamadas de un argumento son 1 más las de los que pide."_s),
                   Traduce(u"Para %1 hacen falta %2: siga hasta %3."_s)
                       .arg(g.caso + 1)
                       .arg(todas[g.caso + 1])
                       .arg(n)},
        .solucion = [g, n, nivel] {
            return nivel == 1 ? pasosDeLlamadas(n, false) : pasosDeLlamadora(g, n);
        }};
}

Paso pasoDeMemoria(const Llamadora &g, int n)
{
    const qint64 con = g.conMemoria(n);
    const qint64 veces = g.bajadas.size();
    return {Traduce(u"Con memoria, cada uno de los %1 valores que se calculan hace sus %2 llamadas "
                    "una sola vez, y está además la primera."_s)
                .arg((con - 1) / veces)
                .arg(veces),
            {u"1 + %1*%2 = %3"_s.arg(veces).arg((con - 1) / veces).arg(con)}};
}

Ejercicio memoria(int nivel, Sorteo &sorteo)
{
    const Llamadora g = llamadoraDe(nivel, sorteo);
    const int n = static_cast<int>(nivel == 1 ? sorteo.entre(6, 25) : sorteo.entre(8, 13));
    const qint64 sin = g.llamadas(n)[n];
    const qint64 con = g.conMemoria(n);
    const auto par = [](qint64 a, qint64 b) { return u"%1 %2"_s.arg(a).arg(b); };
    return {
        .enunciado = preguntaDe(
            nivel, g,
            Traduce(u"¿Cuántas llamadas hacen falta en total para g(%1), contando la primera, sin "
                    "memoria y con memoria?"_s)
                .arg(n)),
        .forma = {FormaDeRespuesta::Lista},
        .ejemplo = Traduce(u"Sin y con memoria: 9, 7"_s),
        .esperada = u"%1, %2"_s.arg(sin).arg(con),
        .juzga = juicioDe(
            par(sin, con),
            {{par(con, sin), Traduce(u"Están en el otro orden."_s), u"orden"_s},
             {par(sin - 1, con - 1), Traduce(u"Falta la primera llamada."_s), u"sin-la-primera"_s},
             {par(sin, (con - 1) / g.bajadas.size()),
              Traduce(u"Con memoria ha contado los valores que se calculan, no las llamadas."_s),
              u"valores"_s},
             {par(sin, n + 1), Traduce(u"Consultar la memoria también es una llamada."_s),
              u"sin-consultas"_s},
             {par(sin, sin), Traduce(u"La memoria ahorra llamadas."_s), u"sin-ahorro"_s}},
            Traduce(u"Se piden dos números: las llamadas sin memoria, y las que quedan si ningún "
                    "valor se calcula dos veces."_s)),
        .pistas = {Traduce(u"Con memoria, cada valor hace sus llamadas solo la primera vez."_s),
                   Traduce(u"Con memoria se calculan %1 valores, y cada uno hace %2 llamadas."_s)
                       .arg((con - 1) / g.bajadas.size())
                       .arg(g.bajadas.size())},
        .solucion = [g, n, nivel] {
            return Pasos::seguidos({nivel == 1 ? pasosDeLlamadas(n, false) : pasosDeLlamadora(g, n),
                                    Pasos(QList<Paso>{pasoDeMemoria(g, n)})});
        }};
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDeComplejidad()
{
    return {{u"complejidad.llamadas"_s, u"Cuántas llamadas"_s, llamadas},
            {u"complejidad.movimientos"_s, u"Movimientos en Hanói"_s, movimientosDeHanoi},
            {u"complejidad.recurrencia"_s, u"Resolver una recurrencia"_s, valorDeRecurrencia},
            {u"complejidad.orden"_s, u"Orden de crecimiento"_s, ordenDeCrecimiento},
            {u"complejidad.memoria"_s, u"Con memoria y sin ella"_s, memoria}};
}
