// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/fibonacci/windows/EscenasFibonacci.h"

using namespace Qt::Literals::StringLiterals;

QList<Escena> escenasFibonacci()
{
    const Gesto calcula{u"cmdCalcular"_s, {}};
    const Gesto porDefinicion{u"optMetodo_0"_s, {}};
    const Gesto porDuplicacion{u"optMetodo_2"_s, {}};
    const Gesto hastaElFinal{u"cmdTodo"_s, {}};
    const Gesto prueba{u"cmdProbar"_s, {}};
    const Gesto pasos{u"cmdTodosLosPasos"_s, {}};
    return {
        {u"fibonacci-introduccion"_s, u"intro"_s},
        {u"fibonacci-valores-vacia"_s, u"valores"_s},
        {u"fibonacci-valores"_s,
         u"valores"_s,
         {porDefinicion,
          calcula,
          {u"optMetodo_1"_s, {}},
          calcula,
          porDuplicacion,
          calcula,
          {u"TxtN"_s, u"10000"_s},
          calcula}},
        {u"fibonacci-valores-en-marcha"_s,
         u"valores"_s,
         {{u"TxtN"_s, u"50"_s}, porDefinicion, calcula},
         true},
        {u"fibonacci-valores-rechazado"_s, u"valores"_s, {{u"TxtN"_s, u"5/2"_s}, calcula}},
        {u"fibonacci-valores-pasos"_s, u"valores"_s, {porDuplicacion, calcula, pasos}},
        {u"fibonacci-aureo"_s, u"aureo"_s},
        {u"fibonacci-aureo-500"_s, u"aureo"_s, {{u"TxtHasta"_s, u"500"_s}, {u"cmdAureo"_s, {}}}},
        {u"fibonacci-aureo-pasos"_s, u"aureo"_s, {pasos}},
        {u"fibonacci-zeckendorf-vacia"_s, u"zeckendorf"_s},
        {u"fibonacci-zeckendorf-a-medias"_s,
         u"zeckendorf"_s,
         {{u"cmdSiguiente"_s, {}}, {u"cmdSiguiente"_s, {}}}},
        {u"fibonacci-zeckendorf"_s, u"zeckendorf"_s, {{u"TxtNumero"_s, u"10^15"_s}, hastaElFinal}},
        {u"fibonacci-zeckendorf-pasos"_s, u"zeckendorf"_s, {hastaElFinal, pasos}},
        {u"fibonacci-identidades-vacia"_s, u"identidades"_s},
        {u"fibonacci-identidades"_s, u"identidades"_s, {prueba}},
        {u"fibonacci-identidades-grandes"_s,
         u"identidades"_s,
         {{u"TxtIndiceM"_s, u"1000"_s}, {u"TxtIndiceN"_s, u"1500"_s}, prueba}},
        {u"fibonacci-identidades-pasos"_s,
         u"identidades"_s,
         {{u"TxtIndiceM"_s, u"3"_s},
          {u"TxtIndiceN"_s, u"4"_s},
          prueba,
          {u"FlexIdentidades"_s, u"2,0"_s},
          pasos,
          {u"listaDePasos"_s, u"1,0"_s}}},
        {u"fibonacci-cuestiones"_s, u"cuestiones"_s},
        {u"fibonacci-cuestiones-juzgada"_s,
         u"cuestiones"_s,
         {{u"txtRespuesta_0"_s, u"89 + 55"_s}, {u"cmdComprobar_0"_s, {}}}}};
}
