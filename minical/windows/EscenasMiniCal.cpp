// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/windows/EscenasMiniCal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A few cells of every kind: short and long results, fractions, decimals, an error.
QList<Gesto> hojaDeMuestra()
{
    const auto en = [](const QString &casillaYTexto) {
        return Gesto{u"FlexCalc"_s, casillaYTexto};
    };
    return {en(u"0,0:1"_s),
            en(u"1,0:(A1+2/A1)/2"_s),
            en(u"2,0:(A2+2/A2)/2"_s),
            en(u"3,0:(A3+2/A3)/2"_s),
            en(u"0,2:2^64"_s),
            en(u"1,2:100!"_s),
            en(u"2,2:mcd(240;46)"_s),
            en(u"0,3:100 mod 7"_s),
            en(u"1,3:1/(C3-2)"_s),
            en(u"2,3:fib(100)"_s),
            en(u"0,4:1/7"_s),
            en(u"0,4"_s),
            Gesto{u"ValorDecimal"_s, {}},
            en(u"1,1:A4^2-2"_s),
            en(u"3,0"_s)};
}

} // namespace

QList<Escena> escenasMiniCal()
{
    QList<Gesto> expresiones = hojaDeMuestra();
    expresiones << Gesto{u"MostrarExpresiones"_s, {}};
    QList<Gesto> enElError = hojaDeMuestra();
    enElError << Gesto{u"FlexCalc"_s, u"1,3"_s};
    QList<Gesto> explicada = hojaDeMuestra();
    explicada << Gesto{u"FlexCalc"_s, u"2,0"_s} << Gesto{u"ExplicarCelda"_s, {}}
              << Gesto{u"cmdTodosLosPasos"_s, {}};
    return {{u"minical-vacia"_s, u"hoja"_s},
            {u"minical-resultados"_s, u"hoja"_s, hojaDeMuestra()},
            {u"minical-expresiones"_s, u"hoja"_s, expresiones},
            {u"minical-error"_s, u"hoja"_s, enElError},
            {u"minical-explicar"_s, u"hoja"_s, explicada},
            {u"minical-ayuda"_s, u"intro"_s}};
}
