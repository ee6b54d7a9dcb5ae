#include "lessons/euclid/EvaluaEntero.h"

#include "bignum/gateway/ModBignum.h"

Moneda EvaluaEntero(const QString &expresion, Moneda maximo)
{
    const Moneda valor = EvaluaMoneda(expresion, maximo);
    return valor.esEntero() ? valor : Moneda();
}
