// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/CuestionesComplejidad.h"

#include "bignum/gateway/Azar.h"
#include "bignum/gateway/ModBignum.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

qint64 fibonacci(int n)
{
    return Evalua(u"fib(%1)"_s.arg(n)).toLongLong();
}

Juicio juzgaLlamadas(const QString &valor, int n)
{
    const qint64 llamadas = 2 * fibonacci(n + 1) - 1;
    if (valor == QString::number(llamadas)) {
        return {true, Traduce(u"¡Correcto! Son 2 · F(%1) − 1 = %2."_s)
                          .arg(QString::number(n + 1), formatoEntero(llamadas))};
    }
    if (valor == QString::number(llamadas - 1))
        return {false, Traduce(u"Falta una: la primera llamada también cuenta."_s)};
    if (valor == QString::number(fibonacci(n + 1)))
        return {false, Traduce(u"Esas son las llamadas que no hacen otras: faltan las demás."_s)};
    return {false, Traduce(u"No. Si L(n) es el número de llamadas, L(0) = L(1) = 1 y "
                           u"L(n) = L(n−1) + L(n−2) + 1."_s)};
}

Juicio juzgaHanoi(const QString &valor, int discos, int disco)
{
    const qint64 veces = qint64{1} << (discos - disco);
    if (valor == QString::number(veces)) {
        return {true, Traduce(u"¡Correcto! El mayor se mueve una vez, y cada uno el doble que el "
                              u"siguiente en tamaño."_s)};
    }
    if (valor == QString::number((qint64{1} << discos) - 1))
        return {false, Traduce(u"Esos son los movimientos de todos los discos."_s)};
    if (valor == QString::number(qint64{1} << (disco - 1)))
        return {false, Traduce(u"Ha contado los discos al revés: el 1 es el menor."_s)};
    return {false, Traduce(u"No. ¿Cuántas veces se mueve el mayor? ¿Y el que va encima de él?"_s)};
}

} // namespace

Cuestion sorteaLlamadas()
{
    return cuestionLlamadas(AleatorioEntre(7, 20));
}

Cuestion cuestionLlamadas(int n)
{
    return {Traduce(u"¿Cuántas llamadas hace en total la función recursiva para calcular F(%1), "
                    u"contando la primera?"_s)
                .arg(n),
            Traduce(u"Un número o una expresión"_s),
            [n](const QString &valor) { return juzgaLlamadas(valor, n); }};
}

Cuestion sorteaHanoi()
{
    const int discos = AleatorioEntre(8, 20);
    // Neither the smallest nor the two largest, which are too easy, nor the one in the middle,
    // where counting from the wrong end gives the same.
    int disco = 0;
    do {
        disco = AleatorioEntre(2, discos - 2);
    } while (2 * disco == discos + 1);
    return cuestionHanoi(discos, disco);
}

Cuestion cuestionHanoi(int discos, int disco)
{
    return {
        Traduce(
            u"En la solución más corta de las torres de Hanói con %1 discos, numerados desde el "
            u"menor, ¿cuántas veces se mueve el disco %2?"_s)
            .arg(discos)
            .arg(disco),
        Traduce(u"Un número o una expresión, como 2^10"_s),
        [discos, disco](const QString &valor) { return juzgaHanoi(valor, discos, disco); }};
}
