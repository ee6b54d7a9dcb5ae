// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/HuecosDeEuclides.h"

#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

enum Columna { Iteracion, Dividendo, Divisor, Cociente, Resto, Coef1, Coef2 };

QString cifras(std::int64_t n)
{
    return QString::number(n);
}

QString entreParentesis(std::int64_t n)
{
    return n < 0 ? u'(' + cifras(n) + u')' : cifras(n);
}

QString delCociente(const DivisionEuclides &d)
{
    const QString veces =
        Traduce(u"%1 cabe %2 veces en %3 y sobra %4: %3 = %2 · %1 + %4."_s)
            .arg(d.divisor.texto(), d.cociente.texto(), d.dividendo.texto(), d.resto.texto());
    return d.resto < Moneda()
               ? Traduce(u"Con %1 veces %2 se pasa de %3 en menos de lo que faltaría con una vez "
                         "menos: el cociente se toma uno mayor."_s)
                     .arg(d.cociente.texto(), d.divisor.texto(), d.dividendo.texto())
               : veces;
}

QString delResto(const DivisionEuclides &d)
{
    return Traduce(
               u"El resto es el dividendo menos el cociente por el divisor: %1 − %2 · %3 = %4."_s)
        .arg(d.dividendo.texto(), d.cociente.texto(), d.divisor.texto(), d.resto.texto());
}

QString delCoeficiente(const TablaEuclides &tabla, qsizetype fila,
                       std::int64_t DivisionEuclides::*coef, std::int64_t primero)
{
    const auto &d = tabla.divisiones();
    const std::int64_t ultimo = 1 - primero;
    const std::int64_t dosAntes = fila > 1 ? d[fila - 2].*coef : fila == 1 ? ultimo : primero;
    const std::int64_t unoAntes = fila > 0 ? d[fila - 1].*coef : ultimo;
    const QString cuenta =
        Traduce(u"El de dos filas antes menos el cociente por el de la fila anterior: "
                "%1 − %2 · %3 = %4."_s)
            .arg(entreParentesis(dosAntes), d[fila].cociente.texto(), entreParentesis(unoAntes),
                 cifras(d[fila].*coef));
    return fila > 1 ? cuenta
                    : cuenta + u' ' +
                          Traduce(u"Antes de la tabla van %1 y %2."_s).arg(primero).arg(ultimo);
}

QString porQue(const TablaEuclides &tabla, qsizetype fila, qsizetype columna)
{
    const DivisionEuclides &d = tabla.divisiones()[fila];
    switch (columna) {
    case Iteracion:
        return Traduce(u"Las divisiones se cuentan desde 1."_s);
    case Dividendo:
        return fila == 0 ? Traduce(u"Es uno de los dos números dados."_s)
                         : Traduce(u"El dividendo es el divisor de la fila anterior."_s);
    case Divisor:
        return fila == 0 ? Traduce(u"Es uno de los dos números dados."_s)
                         : Traduce(u"El divisor es el resto de la fila anterior, sin su signo."_s);
    case Cociente:
        return delCociente(d);
    case Resto:
        return delResto(d);
    case Coef1:
        return delCoeficiente(tabla, fila, &DivisionEuclides::coef1, 1);
    default:
        return delCoeficiente(tabla, fila, &DivisionEuclides::coef2, 0);
    }
}

} // namespace

TablaConHuecos huecosDeEuclides(const TablaEuclides &tabla)
{
    QList<QStringList> filas;
    for (const DivisionEuclides &d : tabla.divisiones())
        filas << QStringList{cifras(filas.size() + 1), d.dividendo.texto(), d.divisor.texto(),
                             d.cociente.texto(),       d.resto.texto(),     cifras(d.coef1),
                             cifras(d.coef2)};
    TablaConHuecos huecos(
        {Traduce(u"Iteración"_s), Traduce(u"Dividendo"_s), Traduce(u"Divisor"_s),
         Traduce(u"Cociente"_s), Traduce(u"Resto"_s), Traduce(u"Coef. 1"_s), Traduce(u"Coef. 2"_s)},
        filas, [tabla](qsizetype fila, qsizetype columna) { return porQue(tabla, fila, columna); });
    for (qsizetype fila = 0; fila < filas.size(); ++fila)
        huecos.fija(fila, Iteracion);
    if (!filas.isEmpty()) {
        huecos.fija(0, Dividendo);
        huecos.fija(0, Divisor);
    }
    return huecos;
}
