#include "lessons/primes/EscenasPrimos.h"

using namespace Qt::Literals::StringLiterals;

QList<Escena> escenasPrimos(int fila)
{
    const QString primo = u"170141183460469231731687303715884105727"_s;
    return {
        {u"primos-introduccion"_s, fila, u"intro"_s},
        {u"primos-test-vacio"_s, fila, u"test"_s},
        {u"primos-test-compuesto"_s,
         fila,
         u"test"_s,
         {{u"txtNúmero"_s, u"91"_s}, {u"cmdEsPrimo"_s, {}}}},
        {u"primos-test-primo"_s, fila, u"test"_s, {{u"txtNúmero"_s, primo}, {u"cmdEsPrimo"_s, {}}}},
        {u"primos-test-2000-bits"_s,
         fila,
         u"test"_s,
         {{u"txtNumBits"_s, u"2000"_s}, {u"cmdNumBits"_s, {}}}}};
}
