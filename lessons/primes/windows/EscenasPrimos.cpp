// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/windows/EscenasPrimos.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

QList<Escena> escenasPrimos()
{
    const QString primo = u"170141183460469231731687303715884105727"_s;
    return {
        {u"primos-introduccion"_s, u"intro"_s},
        {u"primos-criba-vacia"_s, u"criba"_s},
        {u"primos-criba-en-marcha"_s,
         u"criba"_s,
         {{u"txtMaxPrimo"_s, u"10^8"_s}, {u"BtnCriba"_s, {}}},
         true,
         100ms},
        {u"primos-criba"_s, u"criba"_s, {{u"BtnCriba"_s, {}}}},
        {u"primos-test-vacio"_s, u"test"_s},
        {u"primos-test-compuesto"_s, u"test"_s, {{u"txtNúmero"_s, u"91"_s}, {u"cmdEsPrimo"_s, {}}}},
        {u"primos-test-primo"_s, u"test"_s, {{u"txtNúmero"_s, primo}, {u"cmdEsPrimo"_s, {}}}},
        {u"primos-test-2000-bits"_s,
         u"test"_s,
         {{u"txtNumBits"_s, u"2000"_s}, {u"cmdNumBits"_s, {}}}},
        {u"primos-factorizacion-vacia"_s, u"factorizacion"_s},
        {u"primos-factorizacion-en-marcha"_s,
         u"factorizacion"_s,
         {{u"TxtN"_s, u"12*9999999999971"_s}, {u"OptAlgoritmo_0"_s, {}}, {u"BtnFactoriza"_s, {}}},
         true},
        {u"primos-factorizacion"_s,
         u"factorizacion"_s,
         {{u"TxtN"_s, u"2^128 - 1"_s}, {u"BtnFactoriza"_s, {}}}},
        {u"primos-factorizacion-grande"_s,
         u"factorizacion"_s,
         {{u"TxtN"_s, u"(2^521 - 1) * 10!"_s}, {u"BtnFactoriza"_s, {}}}},
        {u"primos-cuestiones-vacia"_s, u"cuestiones"_s},
        {u"primos-cuestiones"_s,
         u"cuestiones"_s,
         {{u"txtPrimo_0"_s, u"sigprimo(2^70)"_s},
          {u"txtPrimo_1"_s, u"sigprimo(2^71)"_s},
          {u"cmdProblema"_s, {}}}}};
}
