#include "lessons/rsa/EscenasRSA.h"

using namespace Qt::Literals::StringLiterals;

// What would save a key or read somebody's mailbox has no place here: the gallery writes pictures
// and nothing else.
QList<Escena> escenasRSA(int fila)
{
    const QString p = u"618970019642690137449562111"_s;
    const QString q = u"170141183460469231731687303715884105727"_s;
    const QString clave, s = u"65537"_s;
    return {
        {u"rsa-introduccion"_s, fila, u"intro"_s},
        {u"rsa-clave-vacia"_s, fila, clave},
        {u"rsa-clave-objecion"_s,
         fila,
         clave,
         {{u"txtQ_1"_s, u"259"_s}, {u"txtQ_2"_s, u"263"_s}, {u"txtS"_s, u"5"_s}}},
        {u"rsa-clave-escrita"_s, fila, clave, {{u"txtQ_1"_s, p}, {u"txtQ_2"_s, q}, {u"txtS"_s, s}}},
        {u"rsa-codificacion"_s,
         fila,
         u"cod-decod"_s,
         {{u"txtTextoOriginal"_s, u"¿Quedamos mañana a las cinco?"_s}}},
    };
}
