// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/fibonacci/PasosDeFibonacci.h"

#include "lessons/fibonacci/NumeroDeFibonacci.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString fib(int n)
{
    return numeroDeFibonacci(n);
}

Paso casoBase(int n)
{
    return {Traduce(u"F(%1) es un valor dado: no hay que calcular nada."_s).arg(n),
            {u"F(%1) = %1"_s.arg(n)}};
}

/// F(k) from the two before it; with what it costs where each is called for.
Paso pasoDeSuma(int k, bool conLlamadas)
{
    const QString uno = fib(k - 1);
    const QString dos = fib(k - 2);
    const QString valor = fib(k);
    Paso paso{Traduce(u"F(%1) es la suma de los dos anteriores."_s).arg(k),
              {u"F(%1) = F(%2) + F(%3) = %4 + %5 = %6"_s.arg(k).arg(k - 1).arg(k - 2).arg(uno, dos,
                                                                                          valor)},
              Traduce(u"Definición: F(n) = F(n − 1) + F(n − 2)"_s)};
    if (conLlamadas) {
        paso.formulas << Formula(u"L(%1) = 1 + L(%2) + L(%3) = 2*F(%4) - 1 = 2*%5 - 1"_s.arg(k)
                                     .arg(k - 1)
                                     .arg(k - 2)
                                     .arg(k + 1)
                                     .arg(fib(k + 1)));
        paso.regla += u"; "_s + Traduce(u"L cuenta las llamadas"_s);
    }
    return paso;
}

int numBits(int n)
{
    int bits = 0;
    for (; n > 0; n /= 2)
        ++bits;
    return bits;
}

/// What the first `i` binary digits of n are worth.
int prefijo(int n, int i)
{
    return n >> (numBits(n) - i);
}

Paso pasoBinario(int n)
{
    const int bits = numBits(n);
    QStringList potencias;
    TablaDePaso tabla{{Traduce(u"cifra"_s), u"k"_s}, {}};
    for (int i = 1; i <= bits; ++i) {
        const int k = prefijo(n, i);
        if (k % 2 == 1)
            potencias << u"2^%1"_s.arg(bits - i);
        tabla.filas << QStringList{QString::number(k % 2), QString::number(k)};
    }
    return {Traduce(u"En base 2, n = %1 tiene %2 cifras. Con cada cifra k se dobla, y si es un 1 "
                    u"se le suma "
                    "1."_s)
                .arg(QString::number(n), QString::number(QString::number(n, 2).size())),
            {u"%1 = %2"_s.arg(n).arg(potencias.join(u" + "_s))},
            Traduce(u"Empieza en k = 0, con F(0) = 0 y F(1) = 1."_s),
            tabla};
}

/// From F(k), F(k+1) to those of 2k, or of 2k + 1 where digit i, from 1 on, is a 1.
Paso pasoDeDoblar(int n, int i)
{
    const int k = prefijo(n, i) / 2;
    const bool impar = prefijo(n, i) % 2 == 1;
    const QString f = fib(k);
    const QString siguiente = fib(k + 1);
    Paso paso{
        impar ? Traduce(u"La cifra es 1: de k = %1 se pasa a %2, y de ahí a %3."_s)
                    .arg(k)
                    .arg(2 * k)
                    .arg(2 * k + 1)
              : Traduce(u"La cifra es 0: de k = %1 se pasa a %2."_s).arg(k).arg(2 * k),
        {u"F(%1) = F(%2)*(2*F(%3) - F(%2)) = %4*(2*%5 - %4) = %6"_s.arg(2 * k)
             .arg(k)
             .arg(k + 1)
             .arg(f, siguiente, fib(2 * k)),
         u"F(%1) = F(%2)^2 + F(%3)^2 = %4^2 + %5^2 = %6"_s.arg(2 * k + 1).arg(k).arg(k + 1).arg(
             f, siguiente, fib(2 * k + 1))},
        Traduce(u"F(2k) = F(k) · (2F(k+1) − F(k)) y F(2k+1) = F(k)² + F(k+1)²"_s)};
    if (impar)
        paso.formulas << Formula(
            u"F(%1) = F(%2) + F(%3) = %4"_s.arg(2 * k + 2).arg(2 * k).arg(2 * k + 1).arg(
                fib(2 * k + 2)));
    return paso;
}

Paso pasoDeTabla(int n)
{
    TablaDePaso tabla{{Traduce(u"cifra"_s), u"k"_s, u"F(k)"_s, u"F(k + 1)"_s}, {}};
    for (int i = 1; i <= numBits(n); ++i) {
        const int k = prefijo(n, i);
        tabla.filas << QStringList{QString::number(k % 2), QString::number(k), fib(k), fib(k + 1)};
    }
    tabla.marcadas = {tabla.filas.size() - 1};
    const Formula formula(u"F(%1) = %2"_s.arg(n).arg(fib(n)));
    return {Traduce(u"Pasos para F(%1): %2, uno por cifra. Sumando uno a uno: %3."_s)
                .arg(n)
                .arg(numBits(n))
                .arg(n - 1),
            {formula},
            {},
            tabla};
}

/// The square of each quotient beside the next one: they lie on different sides of the limit.
Paso pasoDeCociente(int n)
{
    const QString anterior = fib(n - 1);
    const QString f = fib(n);
    const QString siguiente = fib(n + 1);
    Paso paso{Traduce(u"El cociente siguiente es 1 más el inverso del anterior."_s),
              {u"%1/%2 = 1 + %3/%2"_s.arg(siguiente, f, anterior)},
              Traduce(u"F(n + 1) = F(n) + F(n − 1), dividido por F(n)"_s)};
    if (n == 1)
        paso.frase = Traduce(u"El primer cociente es 1."_s);
    else
        paso.formulas << Formula(u"%1/%2 - %2/%3 = %4/{%3*%2}"_s.arg(siguiente, f, anterior)
                                     .arg(n % 2 == 0 ? u"1"_s : u"-1"_s));
    if (n > 1)
        paso.regla +=
            u"; "_s + Traduce(u"φ está siempre entre dos seguidos, cada vez más juntos"_s);
    return paso;
}

} // namespace

Pasos pasosDeFibonacci(MetodoFibonacci metodo, int n)
{
    if (n < 2)
        return Pasos({casoBase(n)});
    if (metodo != MetodoFibonacci::Duplicacion) {
        const bool conLlamadas = metodo == MetodoFibonacci::Definicion;
        return Pasos(n - 1, [conLlamadas](qsizetype i) {
            return pasoDeSuma(static_cast<int>(i) + 2, conLlamadas);
        });
    }
    const int bits = numBits(n);
    return Pasos(bits + 2, [n, bits](qsizetype i) {
        if (i == 0)
            return pasoBinario(n);
        return i <= bits ? pasoDeDoblar(n, static_cast<int>(i)) : pasoDeTabla(n);
    });
}

Pasos pasosDeCocientes(int hasta)
{
    return Pasos(hasta, [](qsizetype i) { return pasoDeCociente(static_cast<int>(i) + 1); });
}
