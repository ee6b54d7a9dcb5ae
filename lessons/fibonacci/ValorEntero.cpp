#include "lessons/fibonacci/ValorEntero.h"

#include "bignum/gateway/ModBignum.h"

QString valorEntero(const QString &expresion)
{
    return Evalua(QString(expresion), {}, Aritmetica::Entera);
}
