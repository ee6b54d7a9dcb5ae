#include "lessons/congruences/windows/EscenasTCR.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Paso celda(const QString &donde, const QString &valor)
{
    return {u"FlexTCR"_s, donde + u':' + valor};
}

} // namespace

QList<Escena> escenasTCR(int fila)
{
    const QString tema = u"sistemas"_s;
    const QList<Paso> sun{celda(u"0,0"_s, u"2"_s), celda(u"0,1"_s, u"3"_s),
                          celda(u"1,0"_s, u"3"_s), celda(u"1,1"_s, u"5"_s),
                          celda(u"2,0"_s, u"2"_s), celda(u"2,1"_s, u"7"_s)};
    const QList<Paso> doce{{u"txtNumEcuaciones"_s, u"12"_s}, {u"cmdProblema1"_s, {}}};
    const Paso resuelve{u"cmdResolver1"_s, {}};
    return {{u"tcr-introduccion"_s, fila, u"intro"_s},
            {u"tcr-vacio"_s, fila, tema},
            {u"tcr-problema"_s, fila, tema, doce},
            {u"tcr-problema-resuelto"_s, fila, tema, doce + QList<Paso>{resuelve}},
            {u"tcr-sun"_s, fila, tema, sun + QList<Paso>{resuelve}},
            {u"tcr-defectos"_s, fila, tema,
             sun + QList<Paso>{celda(u"1,1"_s, u"0"_s), celda(u"2,0"_s, u"dos"_s)}}};
}
