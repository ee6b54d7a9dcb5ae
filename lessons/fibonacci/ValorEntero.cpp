#include "lessons/fibonacci/ValorEntero.h"

#include "bignum/ModBignum.h"

QString valorEntero(const QString &expresion)
{
    return Evalua(QString(expresion), {}, Aritmetica::Entera);
}
