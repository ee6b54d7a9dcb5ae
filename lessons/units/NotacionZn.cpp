#include "lessons/units/NotacionZn.h"

QString subindice(std::int32_t n)
{
    QString texto = QString::number(n);
    for (QChar &cifra : texto)
        cifra = QChar(static_cast<char16_t>(u'₀' + (cifra.unicode() - u'0')));
    return texto;
}
