#include "lessons/rsa/EscenasRSA.h"

using namespace Qt::Literals::StringLiterals;

QList<Escena> escenasRSA(int fila)
{
    return {
        {u"rsa-introduccion"_s, fila, u"intro"_s},
        {u"rsa-clave"_s, fila, u""_s},
        {u"rsa-codificacion"_s, fila, u"cod-decod"_s},
    };
}
