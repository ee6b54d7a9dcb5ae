// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/congruences/windows/EscenasTCR.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Gesto celda(const QString &donde, const QString &valor)
{
    return {u"FlexTCR"_s, donde + u':' + valor};
}

} // namespace

QList<Escena> escenasTCR()
{
    const QString tema = u"sistemas"_s;
    const QList<Gesto> sun{celda(u"0,0"_s, u"2"_s), celda(u"0,1"_s, u"3"_s),
                           celda(u"1,0"_s, u"3"_s), celda(u"1,1"_s, u"5"_s),
                           celda(u"2,0"_s, u"2"_s), celda(u"2,1"_s, u"7"_s)};
    const QList<Gesto> doce{{u"txtNumEcuaciones"_s, u"12"_s}, {u"cmdProblema1"_s, {}}};
    const Gesto resuelve{u"cmdResolver1"_s, {}}, pasos{u"cmdTodosLosPasos"_s, {}};
    return {
        {u"tcr-introduccion"_s, u"intro"_s},
        {u"tcr-vacio"_s, tema},
        {u"tcr-problema"_s, tema, doce},
        {u"tcr-problema-resuelto"_s, tema, doce + QList<Gesto>{resuelve}},
        {u"tcr-sun"_s, tema, sun + QList<Gesto>{resuelve}},
        {u"tcr-pasos"_s, tema, sun + QList<Gesto>{resuelve, pasos}},
        {u"tcr-pasos-uniones"_s, tema,
         sun + QList<Gesto>{celda(u"3,0"_s, u"8"_s), celda(u"3,1"_s, u"15"_s), resuelve, pasos}},
        {u"tcr-sin-solucion"_s, tema,
         sun + QList<Gesto>{celda(u"3,0"_s, u"1"_s), celda(u"3,1"_s, u"21"_s), resuelve}},
        {u"tcr-defectos"_s, tema,
         sun + QList<Gesto>{celda(u"1,1"_s, u"0"_s), celda(u"2,0"_s, u"dos"_s)}}};
}
