#include "lessons/recursion/functions/windows/FormRecursion3PintorDeNumeros.h"

QString FormRecursion3PintorDeNumeros::displayText(const QVariant &valor, const QLocale &) const
{
    constexpr int extremo = 200;
    const QString texto = valor.toString();
    return texto.size() <= 2 * extremo ? texto : texto.left(extremo) + u'…' + texto.right(extremo);
}
