// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/modular/windows/EscenasRecursion2.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QList<Gesto> conModulo(const QString &modulo)
{
    return {{u"TxtMódulo"_s, modulo}, {u"cmdCalcular"_s, {}}};
}

} // namespace

QList<Escena> escenasRecursion2()
{
    const QString representacion = u"representacion"_s;
    const Gesto pasos{u"cmdTodosLosPasos"_s, {}};
    return {{u"recursion2-funcion"_s, u"funcion"_s},
            {u"recursion2-funcion-aceptada"_s,
             u"funcion"_s,
             {{u"txtAlfa"_s, u"3"_s}, {u"TxtBeta"_s, u"-1"_s}, {u"cmdFunción"_s, {}}}},
            {u"recursion2-funcion-rechazada"_s,
             u"funcion"_s,
             {{u"TxtBeta"_s, u"1/2"_s}, {u"cmdFunción"_s, {}}}},
            {u"recursion2-representacion-vacia"_s, representacion},
            {u"recursion2-representacion-10"_s, representacion, conModulo(u"10"_s)},
            {u"recursion2-representacion-1000"_s, representacion, conModulo(u"1000"_s)},
            {u"recursion2-representacion-31999"_s, representacion, conModulo(u"31999"_s)},
            {u"recursion2-representacion-rechazada"_s, representacion,
             conModulo(u"10"_s) + conModulo(u"1/2"_s)},
            {u"recursion2-representacion-pasos"_s, representacion,
             conModulo(u"10"_s) << pasos << Gesto{u"listaDePasos"_s, u"61,0"_s}},
            {u"recursion2-valores-pasos"_s, u"valores"_s,
             conModulo(u"6"_s) << pasos << Gesto{u"listaDePasos"_s, u"13,0"_s}},
            {u"recursion2-valores-vacia"_s, u"valores"_s},
            {u"recursion2-valores"_s, u"valores"_s, conModulo(u"1000"_s)},
            {u"recursion2-cuestiones"_s, u"cuestiones"_s}};
}
