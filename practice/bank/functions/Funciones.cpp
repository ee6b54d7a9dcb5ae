// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/functions/Funciones.h"

#include "lessons/recursion/functions/PasosDeCapicua.h"
#include "lessons/recursion/functions/PasosDeGranizo.h"
#include "practice/bank/functions/Ackermann.h"
#include "practice/bank/functions/Definiciones.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

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
        return {
            Traduce(u"¿En cuántos pasos llega el %1 a 1 en la sucesión del granizo?"_s),
            {c.pasos},
            {{numero(c.pasos + 1), palabraDeMas, u"cuenta-numeros"_s},
             {numero(c.pasos - 1), Traduce(u"Falta un paso: se acaba al llegar a 1."_s),
              u"sin-el-ultimo"_s},
             {numero(c.pasos + 3), Traduce(u"La sucesión se acaba la primera vez que llega a 1."_s),
              u"una-vuelta-mas"_s},
             {numero(c.maximo), Traduce(u"Ese es el mayor valor al que llega."_s), u"maximo"_s}},
            Traduce(u"Un par se divide entre 2; de un impar se toma el triple más 1."_s)};
    const qint64 pasos = nivel == 2 ? c.pasos : c.planeo;
    return {
        nivel == 2
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
    return listaDe(valores);
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
            .esperada = listaDe(p.esperados),
            .juzga =
                juicioDe(listaDe(p.esperados, u" "_s), p.errores,
                         nivel == 1 ? Traduce(u"No son esos pasos: escriba la sucesión entera."_s)
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
        errores << ErrorTipico{ultimo + u' ' + numero(sumas), Traduce(u"Están en el otro orden."_s),
                               u"orden"_s};
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
    return {
        .enunciado =
            (conNumero ? Traduce(u"Sumando a %1 el número que se lee al revés, y así con cada "
                                 "suma, ¿cuántas sumas hacen falta para llegar a un capicúa, y "
                                 "cuál es?"_s)
                       : Traduce(u"Sumando a %1 el número que se lee al revés, y así con cada "
                                 "suma, ¿cuántas sumas hacen falta para llegar a un capicúa?"_s))
                .arg(camino.front()),
        .forma = {conNumero ? FormaDeRespuesta::Lista : FormaDeRespuesta::Entero},
        .ejemplo = conNumero ? Traduce(u"Sumas y capicúa: 1, 33"_s) : Traduce(u"Un número"_s),
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
    return {{u"funciones.ackermann"_s, u"La función de Ackermann"_s, valorDeAckermann},
            {u"funciones.granizo"_s, u"El granizo"_s, granizo},
            {u"funciones.palindromo"_s, u"Sumas hasta un capicúa"_s, palindromo},
            {u"funciones.definicion"_s, u"Qué calcula una definición"_s, definicionRecursiva}};
}
