// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/functions/Definiciones.h"

#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Ejercicio valorSeguido(Sorteo &sorteo)
{
    const qint64 a = sorteo.entre(2, 6);
    const qint64 b = sorteo.entre(2, 4);
    const qint64 c = sorteo.moneda() ? sorteo.entre(1, 5) : -sorteo.entre(1, 5);
    // From where it does not stay on the same value.
    const qint64 inicio = a * (b - 1) + c == 0 ? a + 1 : a;
    const int k = static_cast<int>(sorteo.entre(3, 5));
    const QList<qint64> f = valoresDePrimerOrden(b, c, inicio, k);
    const QString cola = (c < 0 ? u"− "_s : u"+ "_s) + numero(qAbs(c));
    QList<Paso> pasos;
    for (int n = 1; n <= k; ++n)
        pasos << Paso{
            Traduce(u"De f(%1) sale f(%2)."_s).arg(n - 1).arg(n),
            {u"f(%1) = %2*(%3) + (%4) = %5"_s.arg(n).arg(b).arg(f[n - 1]).arg(c).arg(f[n])}};
    return {
        .enunciado = Traduce(u"Sea f(0) = %1 y f(n) = %2f(n − 1) %3. ¿Cuánto vale f(%4)?"_s)
                         .arg(numero(inicio), numero(b), cola, numero(k)),
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = numero(f[k]),
        .juzga = juicioDe(
            numero(f[k]),
            {{numero(f[k - 1]), Traduce(u"Ese es el valor anterior."_s), u"un-lugar"_s},
             {numero(f[k + 1]), Traduce(u"Ese es el valor siguiente."_s), u"un-lugar"_s},
             {numero(inicio * potencia(b, k)), Traduce(u"Ha olvidado la constante que se suma."_s),
              u"sin-constante"_s},
             {numero(valoresDePrimerOrden(b, -c, inicio, k)[k]),
              Traduce(u"La constante lleva otro signo."_s), u"signo"_s},
             {numero(b * k + c), Traduce(u"La regla se aplica a f(n − 1), no a n."_s), u"con-n"_s}},
            Traduce(u"No es ese valor: empiece en f(0) y suba."_s)),
        .pistas = {Traduce(u"Empiece en f(0) y suba de uno en uno."_s),
                   u"f(1) = %1, f(2) = %2."_s.arg(f[1]).arg(f[2])},
        .solucion = [pasos] { return Pasos(pasos); }};
}

/// A definition and whether each natural number gets down to a value.
struct Dudosa
{
    QString texto;
    bool vale;
    QString razon; ///< why it does or does not
    QString nota;  ///< of the wrong answer
};

Dudosa dudosaDe(Sorteo &sorteo)
{
    const QString c = numero(sorteo.entre(1, 9));
    const QString k = numero(sorteo.entre(2, 4));
    const QString f0 = numero(sorteo.entre(0, 5));
    const bool vale = sorteo.moneda();
    const QList<Dudosa> buenas = {
        {u"f(0) = %1, f(n) = f(⌊n/%2⌋) + %3"_s.arg(f0, k, c), true,
         Traduce(u"La parte entera de ese cociente es menor que n, y se llega a 0."_s),
         u"si-baja"_s},
        {u"f(0) = %1, f(n) = %2 · f(n − 1) + %3"_s.arg(f0, k, c), true,
         Traduce(u"Se baja de uno en uno hasta 0."_s), u"si-baja"_s},
        {u"f(0) = %1, f(n) = f(n − 1) + f(⌊n/%2⌋)"_s.arg(f0, k), true,
         Traduce(u"Los dos argumentos son naturales menores que n."_s), u"si-baja"_s},
        {u"f(0) = %1, f(1) = %2, f(n) = f(n − 2) + %3 (n ≥ 2)"_s.arg(f0, k, c), true,
         Traduce(u"Bajando de dos en dos se llega a 0 o a 1, y los dos tienen valor."_s),
         u"si-baja"_s}};
    const QList<Dudosa> malas = {
        {u"f(0) = %1, f(n) = f(n + %2) − %3"_s.arg(f0, k, c), false,
         Traduce(u"Desde n > 0 se va cada vez más lejos de 0."_s), u"no-baja"_s},
        {u"f(0) = %1, f(n) = f(n − %2) + %3"_s.arg(f0, k, c), false,
         Traduce(u"Bajando así, algunos números saltan por encima del 0."_s), u"salta-el-caso"_s},
        {u"f(0) = %1, f(n) = f(n) + %2"_s.arg(f0, c), false,
         Traduce(u"f(n) se pide a sí mismo: no se baja nunca."_s), u"no-baja"_s},
        {u"f(0) = %1, f(n) = f(%2n − %2) + %3"_s.arg(f0, k, c), false,
         Traduce(u"El argumento no baja desde el 2: o se queda igual o crece."_s), u"no-baja"_s}};
    return sorteo.de(vale ? buenas : malas);
}

Ejercicio estaDefinida(Sorteo &sorteo)
{
    static const QStringList siONo = {u"sí"_s, u"no"_s};
    const Dudosa d = dudosaDe(sorteo);
    return {.enunciado = Traduce(u"Solo se admiten números naturales, desde el 0. ¿Define esto una "
                                 "función en todos ellos? %1"_s)
                             .arg(d.texto),
            .forma = {FormaDeRespuesta::Palabra, siONo},
            .ejemplo = {},
            .esperada = Traduce(siONo[d.vale ? 0 : 1]),
            .juzga =
                [d](const RespuestaLeida &r) {
                    if ((r.palabra == siONo[0]) == d.vale)
                        return correcto();
                    return Fallo::mal(
                        d.vale
                            ? Traduce(u"Pruebe con unos cuantos n: ¿se acaba llegando a un valor "
                                      "dado?"_s)
                            : Traduce(u"Pruebe con n = 1, 2, 3…: alguno no llega a ningún valor "
                                      "dado."_s),
                        d.nota);
                },
            .pistas = {Traduce(u"Cada argumento tiene que ser un natural menor que n, y la bajada, "
                               "acabar en un valor dado."_s),
                       Traduce(u"Calcule, si puede, f(1), f(2) y f(3)."_s)},
            .solucion =
                [d] {
                    return Pasos(QList<Paso>{
                        {(d.vale ? Traduce(u"Sí."_s) : Traduce(u"No."_s)) + u' ' + d.razon}});
                }};
}

/// The digits of n in base b, the last one first.
QList<qint64> cifrasDe(qint64 n, qint64 b)
{
    QList<qint64> cifras;
    for (; n > 0; n /= b)
        cifras << n % b;
    return cifras;
}

qint64 sumaDe(const QList<qint64> &numeros)
{
    qint64 suma = 0;
    for (const qint64 n : numeros)
        suma += n;
    return suma;
}

/// Divides until 0: with every step c is added, or the remainder.
Ejercicio cifras(Sorteo &sorteo)
{
    const qint64 b = sorteo.entre(2, 8);
    const qint64 n = sorteo.entre(b * b * b, 700);
    const bool restos = sorteo.moneda();
    const qint64 c = sorteo.entre(1, 3);
    const QList<qint64> lista = cifrasDe(n, b);
    const qint64 suma = sumaDe(lista);
    const qint64 porPasos = c * lista.size();
    const qint64 valor = restos ? suma : porPasos;
    const QString cola = restos ? u"(n mod %1)"_s.arg(b) : numero(c);
    QStringList sumandos;
    for (const qint64 cifra : lista)
        sumandos << numero(restos ? cifra : c);
    QList<ErrorTipico> errores = {
        {numero(restos ? lista.size() : suma),
         restos ? Traduce(u"Se suman los restos, no las veces que se divide."_s)
                : Traduce(u"Se suma lo mismo en cada paso, no los restos."_s),
         u"otra-cuenta"_s},
        {numero(restos ? suma - lista.back() : porPasos - c),
         Traduce(u"También cuenta el último paso, el que llega a 0."_s), u"sin-el-ultimo"_s},
        {numero(n % b), Traduce(u"Ese es solo el primer resto."_s), u"un-paso"_s},
        {numero(sumaDe(cifrasDe(n, 10))), Traduce(u"Esas son las cifras en base 10."_s),
         u"base-10"_s}};
    if (!restos)
        errores << ErrorTipico{numero(porPasos + c), Traduce(u"f(0) vale 0: no suma nada."_s),
                               u"cuenta-el-cero"_s};
    return {.enunciado = Traduce(u"Sea f(0) = 0 y, si n > 0, f(n) = f(⌊n/%1⌋) + %2. ¿Cuánto vale "
                                 "f(%3)?"_s)
                             .arg(numero(b), cola, numero(n)),
            .forma = {FormaDeRespuesta::Entero},
            .ejemplo = Traduce(u"Un número"_s),
            .esperada = numero(valor),
            .juzga = juicioDe(numero(valor), errores,
                              Traduce(u"No es ese valor: escriba las llamadas hasta f(0)."_s)),
            .pistas = {Traduce(u"Divida una y otra vez: ¿qué tiene que ver con escribir n en otra "
                               "base?"_s),
                       Traduce(u"En base %1 las cifras de %2, desde la última, son %3."_s)
                           .arg(numero(b), numero(n), listaDe(lista))},
            .solucion = [=] {
                return Pasos(QList<Paso>{
                    {Traduce(u"Cada división quita una cifra de n en base %1; desde la última, son "
                             "%2."_s)
                         .arg(numero(b), listaDe(lista))},
                    {restos ? Traduce(u"Se suman las cifras."_s)
                            : Traduce(u"Se suma %1 por cada cifra."_s).arg(c),
                     {u"f(%1) = %2 = %3"_s.arg(n).arg(sumandos.join(u" + "_s)).arg(valor)}}});
            }};
}

} // namespace

Ejercicio definicionRecursiva(int nivel, Sorteo &sorteo)
{
    return nivel == 1 ? valorSeguido(sorteo) : nivel == 2 ? estaDefinida(sorteo) : cifras(sorteo);
}
