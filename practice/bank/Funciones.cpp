// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/Funciones.h"

#include "lessons/recursion/functions/PasosDeAck.h"
#include "lessons/recursion/functions/PasosDeCapicua.h"
#include "lessons/recursion/functions/PasosDeGranizo.h"
#include "practice/bank/Definiciones.h"
#include "practice/bank/JuicioDeNumeros.h"
#include "practice/bank/NumerosPequenos.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString numero(qint64 n)
{
    return QString::number(n);
}

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
    return ackDe(m, n,
                 {u"Ack(0, n) = n + 1, Ack(m, 0) = Ack(m − 1, 1), Ack(m, n) = Ack(m − 1, Ack(m, n − "
                  "1))"_s,
                  Traduce(u"Ack(%1, 0) = %2 y Ack(%1, 1) = %3."_s)
                      .arg(m)
                      .arg(valorDeAck(m, 0))
                      .arg(valorDeAck(m, 1))},
                 [m, n] {
                     constexpr std::int32_t Corte = 1000;
                     return pasosDeAck({static_cast<std::int32_t>(m), static_cast<std::int32_t>(n)},
                                       Corte);
                 });
}

Ejercicio ackPorFilas(Sorteo &sorteo)
{
    const qint64 m = sorteo.entre(2, 3);
    const qint64 n = m == 2 ? sorteo.entre(10, 40) : sorteo.entre(3, 7);
    return ackDe(m, n,
                 {Traduce(u"Cada fila tiene una fórmula: la 1 es n + 2. Calcule los primeros valores "
                          "de la que se pide."_s),
                  m == 2 ? Traduce(u"En la fila 2 cada valor pasa en 2 del anterior, y el primero es "
                                   "3."_s)
                         : Traduce(u"En la fila 3 cada valor más 3 es el doble del anterior más 3, y "
                                   "el primero es 5."_s)},
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
                return Pasos(
                    QList<Paso>{{Traduce(u"La de dentro, por la fórmula de su fila."_s),
                                 {formulaDeAck(j, k)}},
                                {Traduce(u"Y la de fuera."_s), {formulaDeAck(m, dentro)}}});
            }};
}

Ejercicio ackermann(int nivel, Sorteo &sorteo)
{
    return nivel == 1   ? ackPorLlamadas(sorteo)
           : nivel == 2 ? ackPorFilas(sorteo)
                        : ackAnidado(sorteo);
}

struct Caida
{
    qint64 inicio = 1;
    qint64 pasos = 0;  ///< until 1
    qint64 maximo = 0; ///< the largest value on the way
    qint64 planeo = 0; ///< until the first value below the start
};

Caida caidaDe(qint64 inicio)
{
    Caida caida{inicio, 0, inicio, 0};
    for (qint64 h = inicio; h != 1; ++caida.pasos) {
        if (h < inicio && caida.planeo == 0)
            caida.planeo = caida.pasos;
        h = h % 2 == 0 ? h / 2 : 3 * h + 1;
        caida.maximo = std::max(caida.maximo, h);
    }
    return caida;
}

/// The starts up to a bound whose way is neither short nor long.
QList<Caida> caidasHasta(qint64 bordo, qint64 masPasos, qint64 menosPlaneo)
{
    QList<Caida> caidas;
    for (qint64 n = 3; n <= bordo; ++n) {
        const Caida caida = caidaDe(n);
        if (caida.pasos > 5 && caida.pasos <= masPasos && caida.planeo >= menosPlaneo &&
            caida.maximo > n)
            caidas << caida;
    }
    return caidas;
}

/// Level 1 asks for the steps; 2, for the steps and the largest value; 3, for the glide and the
/// largest value.
struct PreguntaDeGranizo
{
    QString enunciado;
    QList<qint64> esperados;
    QList<ErrorTipico> errores;
    QString pista;
};

PreguntaDeGranizo preguntaDe(int nivel, const Caida &c)
{
    const auto par = [](qint64 a, qint64 b) { return u"%1 %2"_s.arg(a).arg(b); };
    const QString palabraDeMas = Traduce(u"Los pasos son las flechas, no los números."_s);
    if (nivel == 1)
        return {Traduce(u"¿En cuántos pasos llega el %1 a 1 en la sucesión del granizo?"_s),
                {c.pasos},
                {{numero(c.pasos + 1), palabraDeMas, u"cuenta-numeros"_s},
                 {numero(c.pasos - 1), Traduce(u"Falta un paso: se acaba al llegar a 1."_s),
                  u"sin-el-ultimo"_s},
                 {numero(c.pasos + 3), Traduce(u"La sucesión se acaba la primera vez que llega a 1."_s),
                  u"una-vuelta-mas"_s},
                 {numero(c.maximo), Traduce(u"Ese es el mayor valor al que llega."_s), u"maximo"_s}},
                Traduce(u"Un par se divide entre 2; de un impar se toma el triple más 1."_s)};
    const qint64 pasos = nivel == 2 ? c.pasos : c.planeo;
    return {nivel == 2
                ? Traduce(u"En la sucesión del granizo del %1, ¿cuántos pasos hay hasta el 1, y cuál "
                          "es el mayor valor?"_s)
                : Traduce(u"En la sucesión del granizo del %1, ¿cuántos pasos hay hasta el primer "
                          "valor menor que él, y cuál es el mayor valor antes de llegar a 1?"_s),
            {pasos, c.maximo},
            {{par(c.maximo, pasos), Traduce(u"Están en el otro orden."_s), u"orden"_s},
             {par(pasos + 1, c.maximo), palabraDeMas, u"cuenta-numeros"_s},
             {par(pasos - 1, c.maximo), Traduce(u"Falta un paso."_s), u"sin-el-ultimo"_s},
             {par(nivel == 2 ? c.planeo : c.pasos, c.maximo),
              nivel == 2 ? Traduce(u"Hasta el 1, no hasta el primero que es menor."_s)
                         : Traduce(u"Hasta el primero que es menor, no hasta el 1."_s),
              u"hasta-donde"_s},
             {par(pasos, c.inicio), Traduce(u"La sucesión sube por encima de donde empieza."_s),
              u"maximo-inicial"_s}},
            Traduce(u"Se piden dos números: los pasos y el mayor valor."_s)};
}

QString primerosDeGranizo(qint64 h)
{
    QList<qint64> valores = {h};
    for (int i = 0; i < 4; ++i)
        valores << (valores.back() % 2 == 0 ? valores.back() / 2 : 3 * valores.back() + 1);
    return textoDe(valores, u", "_s);
}

Ejercicio granizo(int nivel, Sorteo &sorteo)
{
    static const QList<QList<Caida>> todas = {caidasHasta(26, 18, 1), caidasHasta(60, 24, 1),
                                              caidasHasta(150, 36, 4)};
    const Caida c = sorteo.de(todas[nivel - 1]);
    const PreguntaDeGranizo p = preguntaDe(nivel, c);
    return {.enunciado = p.enunciado.arg(c.inicio),
            .forma = {nivel == 1 ? FormaDeRespuesta::Entero : FormaDeRespuesta::Lista},
            .ejemplo = nivel == 1 ? Traduce(u"Un número"_s) : Traduce(u"Dos números: 3, 5"_s),
            .esperada = textoDe(p.esperados, u", "_s),
            .juzga = juicioDe(textoDe(p.esperados, u" "_s), p.errores,
                              nivel == 1
                                  ? Traduce(u"No son esos pasos: escriba la sucesión entera."_s)
                                  : p.pista),
            .pistas = {Traduce(u"Un par se divide entre 2; de un impar se toma el triple más 1."_s),
                       Traduce(u"Empieza por %1…"_s).arg(primerosDeGranizo(c.inicio))},
            .solucion = [c] { return pasosDeGranizo(numero(c.inicio), c.pasos); }};
}

QString alReves(QString n)
{
    std::reverse(n.begin(), n.end());
    return n;
}

/// A number and those that it becomes until a palindrome.
QStringList sumasDe(qint64 n, int cuantas)
{
    QStringList numeros = {numero(n)};
    do
        numeros << numero(numeros.back().toLongLong() + alReves(numeros.back()).toLongLong());
    while (numeros.back() != alReves(numeros.back()) && numeros.size() <= cuantas);
    return numeros;
}

/// The numbers from a to b that get there in so many sums.
QList<QStringList> caminosACapicua(qint64 a, qint64 b, int menos, int mas)
{
    QList<QStringList> caminos;
    for (qint64 n = a; n <= b; ++n) {
        const QStringList camino = sumasDe(n, mas);
        const qsizetype sumas = camino.size() - 1;
        const bool capicua = camino.back() == alReves(camino.back());
        if (capicua && sumas >= menos && sumas <= mas && numero(n) != alReves(numero(n)))
            caminos << camino;
    }
    return caminos;
}

QList<ErrorTipico> erroresDeCapicua(const QStringList &camino, bool conNumero)
{
    const qint64 sumas = camino.size() - 1;
    const auto con = [&](qint64 n, const QString &capicua) {
        return numero(n) + (conNumero ? u' ' + capicua : QString());
    };
    const QString ultimo = camino.back();
    QList<ErrorTipico> errores = {
        {con(sumas + 1, ultimo), Traduce(u"Cuente las sumas, no los números."_s),
         u"cuenta-numeros"_s},
        {con(sumas - 1, ultimo), Traduce(u"Falta una suma."_s), u"una-menos"_s},
        {con(sumas - 1, camino[sumas - 1]), Traduce(u"Ese todavía no es capicúa."_s),
         u"no-capicua"_s},
        {con(1, camino[1]), Traduce(u"Una suma sola no llega a un capicúa."_s), u"una-sola"_s}};
    if (conNumero)
        errores << ErrorTipico{ultimo + u' ' + numero(sumas),
                               Traduce(u"Están en el otro orden."_s), u"orden"_s};
    return errores;
}

Ejercicio palindromo(int nivel, Sorteo &sorteo)
{
    static const QList<QList<QStringList>> todos = {caminosACapicua(12, 99, 2, 6),
                                                    caminosACapicua(102, 499, 2, 4),
                                                    caminosACapicua(501, 1999, 3, 6)};
    const QStringList camino = sorteo.de(todos[nivel - 1]);
    const bool conNumero = nivel > 1;
    const QString sumas = numero(camino.size() - 1);
    return {.enunciado =
                (conNumero ? Traduce(u"Sumando a %1 el número que se lee al revés, y así con cada "
                                     "suma, ¿cuántas sumas hacen falta para llegar a un capicúa, y "
                                     "cuál es?"_s)
                           : Traduce(u"Sumando a %1 el número que se lee al revés, y así con cada "
                                     "suma, ¿cuántas sumas hacen falta para llegar a un capicúa?"_s))
                    .arg(camino.front()),
            .forma = {conNumero ? FormaDeRespuesta::Lista : FormaDeRespuesta::Entero},
            .ejemplo =
                conNumero ? Traduce(u"Sumas y capicúa: 1, 33"_s) : Traduce(u"Un número"_s),
            .esperada = conNumero ? sumas + u", "_s + camino.back() : sumas,
            .juzga = juicioDe(conNumero ? sumas + u' ' + camino.back() : sumas,
                              erroresDeCapicua(camino, conNumero),
                              Traduce(u"No es eso: repase las sumas y sus acarreos."_s)),
            .pistas = {Traduce(u"Un capicúa se lee igual al revés: pare en el primero que salga."_s),
                       Traduce(u"La primera suma da %1."_s).arg(camino[1])},
            .solucion = [camino] { return pasosDeCapicua(camino, true); }};
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDeFunciones()
{
    return {{u"funciones.ackermann"_s, u"La función de Ackermann"_s, ackermann},
            {u"funciones.granizo"_s, u"El granizo"_s, granizo},
            {u"funciones.palindromo"_s, u"Sumas hasta un capicúa"_s, palindromo},
            {u"funciones.definicion"_s, u"Qué calcula una definición"_s, definicionRecursiva}};
}
