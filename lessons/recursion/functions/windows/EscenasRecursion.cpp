#include "lessons/recursion/functions/windows/EscenasRecursion.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QList<Paso> conModulo(const QString &modulo)
{
    return {{u"TxtMódulo"_s, modulo}, {u"cmdCalcular"_s, {}}};
}

const Paso EnAckermann{u"SSTab1"_s, u"0"_s};
const Paso EnHailstone{u"SSTab1"_s, u"1"_s};
const Paso EnCapicuas{u"SSTab1"_s, u"2"_s};

Escena funciones(const QString &nombre, int fila, const QList<Paso> &pasos, bool durante = false)
{
    return {nombre, fila, u"funciones"_s, pasos, durante};
}

} // namespace

QList<Escena> escenasRecursion2(int fila)
{
    const QString representacion = u"representacion"_s;
    return {{u"recursion2-funcion"_s, fila, u"funcion"_s},
            {u"recursion2-funcion-aceptada"_s,
             fila,
             u"funcion"_s,
             {{u"txtAlfa"_s, u"3"_s}, {u"TxtBeta"_s, u"-1"_s}, {u"cmdFunción"_s, {}}}},
            {u"recursion2-funcion-rechazada"_s,
             fila,
             u"funcion"_s,
             {{u"TxtBeta"_s, u"1/2"_s}, {u"cmdFunción"_s, {}}}},
            {u"recursion2-representacion-vacia"_s, fila, representacion},
            {u"recursion2-representacion-10"_s, fila, representacion, conModulo(u"10"_s)},
            {u"recursion2-representacion-1000"_s, fila, representacion, conModulo(u"1000"_s)},
            {u"recursion2-representacion-31999"_s, fila, representacion, conModulo(u"31999"_s)},
            {u"recursion2-valores-vacia"_s, fila, u"valores"_s},
            {u"recursion2-valores"_s, fila, u"valores"_s, conModulo(u"1000"_s)},
            {u"recursion2-cuestiones"_s, fila, u"cuestiones"_s}};
}

QList<Escena> escenasRecursion3(int fila)
{
    const Paso ack{u"cmdAck"_s, {}};
    const Paso hail{u"cmdHail"_s, {}};
    const Paso cap{u"cmdCap"_s, {}};
    const QString largo = u"27182818284590452353602874713526624977572470936999"_s.repeated(200);
    return {{u"recursion3-introduccion"_s, fila, u"intro"_s},
            funciones(u"recursion3-ackermann"_s, fila, {EnAckermann}),
            funciones(u"recursion3-ackermann-2-3"_s, fila, {EnAckermann, ack}),
            funciones(u"recursion3-ackermann-4-1"_s, fila,
                      {EnAckermann, {u"TxtX"_s, u"4"_s}, {u"TxtY"_s, u"1"_s}, ack}),
            {u"recursion3-ackermann-calculando"_s,
             fila,
             u"funciones"_s,
             {EnAckermann, ack},
             true,
             std::chrono::milliseconds(0)},
            funciones(u"recursion3-hailstone"_s, fila, {EnHailstone}),
            funciones(u"recursion3-hailstone-27"_s, fila,
                      {EnHailstone, {u"TxtInicial"_s, u"27"_s}, hail}),
            funciones(u"recursion3-hailstone-calculando"_s, fila,
                      {EnHailstone, {u"TxtInicial"_s, largo}, hail}, true),
            funciones(u"recursion3-capicuas"_s, fila, {EnCapicuas}),
            funciones(u"recursion3-capicuas-89"_s, fila,
                      {EnCapicuas, {u"TxtCapInicial"_s, u"89"_s}, cap}),
            funciones(u"recursion3-capicuas-calculando"_s, fila,
                      {EnCapicuas, {u"TxtCapInicial"_s, u"196"_s}, cap}, true)};
}
