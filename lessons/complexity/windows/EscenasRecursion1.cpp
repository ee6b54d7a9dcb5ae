// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/windows/EscenasRecursion1.h"

using namespace Qt::Literals::StringLiterals;

QList<Escena> escenasRecursion1()
{
    const Gesto mide{u"cmdMedir"_s, {}};
    const Gesto mueve{u"cmdMover"_s, {}};
    const Gesto disco{u"cmdSiguienteMovimiento"_s, {}};
    const Gesto llamada{u"cmdSiguienteLlamada"_s, {}};
    const Gesto pasos{u"cmdTodosLosPasos"_s, {}};
    return {{u"recursion1-introduccion"_s, u"intro"_s},
            {u"recursion1-fibonacci-vacia"_s, u"fibonacci"_s},
            {u"recursion1-fibonacci"_s, u"fibonacci"_s, {mide}},
            {u"recursion1-fibonacci-llamadas"_s,
             u"fibonacci"_s,
             {{u"TxtHasta"_s, u"25"_s}, mide, {u"optLlamadas"_s, {}}}},
            {u"recursion1-fibonacci-en-marcha"_s,
             u"fibonacci"_s,
             {{u"TxtHasta"_s, u"45"_s}, mide},
             true},
            {u"recursion1-fibonacci-pasos"_s, u"fibonacci"_s, {mide, pasos}},
            {u"recursion1-arbol"_s, u"arbol"_s},
            {u"recursion1-arbol-paso"_s,
             u"arbol"_s,
             {llamada, llamada, llamada, llamada, llamada, llamada, llamada, llamada}},
            {u"recursion1-arbol-memoria"_s, u"arbol"_s, {{u"chkMemoria"_s, {}}}},
            {u"recursion1-arbol-pasos"_s, u"arbol"_s, {pasos, {u"listaDePasos"_s, u"6,0"_s}}},
            {u"recursion1-hanoi"_s, u"hanoi"_s},
            {u"recursion1-hanoi-paso"_s, u"hanoi"_s, {disco, disco, disco, disco, disco}},
            {u"recursion1-hanoi-pasos"_s, u"hanoi"_s, {disco, disco, disco, disco, disco, pasos}},
            {u"recursion1-hanoi-en-marcha"_s, u"hanoi"_s, {mueve}},
            {u"recursion1-cuestiones"_s, u"cuestiones"_s},
            {u"recursion1-cuestiones-juzgada"_s,
             u"cuestiones"_s,
             {{u"txtRespuesta_1"_s, u"2^3 + 1"_s}, {u"cmdComprobar_1"_s, {}}}}};
}
