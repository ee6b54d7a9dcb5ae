// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/windows/EscenasRecursion3.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const Gesto EnAckermann{u"SSTab1"_s, u"0"_s};
const Gesto EnHailstone{u"SSTab1"_s, u"1"_s};
const Gesto EnCapicuas{u"SSTab1"_s, u"2"_s};

Escena funciones(const QString &nombre, const QList<Gesto> &pasos, bool durante = false)
{
    return {nombre, u"funciones"_s, pasos, durante};
}

} // namespace

QList<Escena> escenasRecursion3()
{
    const Gesto ack{u"cmdAck"_s, {}};
    const Gesto hail{u"cmdHail"_s, {}};
    const Gesto cap{u"cmdCap"_s, {}};
    const Gesto pasos{u"cmdTodosLosPasos"_s, {}};
    const QString largo = u"27182818284590452353602874713526624977572470936999"_s.repeated(200);
    return {
        {u"recursion3-introduccion"_s, u"intro"_s},
        funciones(u"recursion3-ackermann"_s, {EnAckermann}),
        funciones(u"recursion3-ackermann-2-3"_s, {EnAckermann, ack}),
        funciones(u"recursion3-ackermann-4-1"_s,
                  {EnAckermann, {u"TxtX"_s, u"4"_s}, {u"TxtY"_s, u"1"_s}, ack}),
        {u"recursion3-ackermann-calculando"_s,
         u"funciones"_s,
         {EnAckermann, ack},
         true,
         std::chrono::milliseconds(0)},
        funciones(u"recursion3-ackermann-pasos"_s,
                  {EnAckermann, ack, pasos, {u"listaDePasos"_s, u"14,0"_s}}),
        funciones(u"recursion3-hailstone"_s, {EnHailstone}),
        funciones(u"recursion3-hailstone-27"_s, {EnHailstone, {u"TxtInicial"_s, u"27"_s}, hail}),
        funciones(u"recursion3-hailstone-calculando"_s,
                  {EnHailstone, {u"TxtInicial"_s, largo}, hail}, true),
        funciones(u"recursion3-hailstone-pasos"_s,
                  {EnHailstone, {u"TxtInicial"_s, u"7"_s}, hail, pasos}),
        funciones(u"recursion3-capicuas"_s, {EnCapicuas}),
        funciones(u"recursion3-capicuas-89"_s, {EnCapicuas, {u"TxtCapInicial"_s, u"89"_s}, cap}),
        funciones(u"recursion3-capicuas-pasos"_s,
                  {EnCapicuas, {u"TxtCapInicial"_s, u"190"_s}, cap, pasos}),
        funciones(u"recursion3-capicuas-calculando"_s,
                  {EnCapicuas, {u"TxtCapInicial"_s, u"196"_s}, cap}, true)};
}
