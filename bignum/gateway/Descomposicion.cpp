// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/Descomposicion.h"

#include "bignum/gateway/ModBignum.h"

using namespace Qt::Literals::StringLiterals;

Descomposicion Descompone(const QString &n)
{
    // k different primes have a product of at least 2k - 1 bits.
    const qsizetype cuantos = NumeroDeBits(n) / 2 + 1;
    QStringList primos(cuantos), exponentes(cuantos);
    Descomposicion resultado;
    resultado.completa = Factoriza(n, primos, exponentes) != 0;
    for (qsizetype i = 0; i < cuantos && !primos[i].isEmpty(); ++i) {
        Descomposicion::Parte parte{primos[i], exponentes[i], {}};
        // Of a prime power the library finds it at once.
        if (resultado.completa || EsPrimo(primos[i])) {
            QString potencia = primos[i] + u'^' + exponentes[i];
            parte.fi = FiEuler(Evalua(potencia, {}, Aritmetica::Entera));
        }
        resultado.partes << parte;
    }
    return resultado;
}
