// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/modular/TextoDeDefinicion.h"

#include "bignum/gateway/ErrorEjecucion.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

/// "2 f(n-1)", with no number before a coefficient of 1 or -1.
QString sumando(Moneda coeficiente, const QString &valor)
{
    if (coeficiente == Moneda::deEntero(1))
        return valor;
    return coeficiente == Moneda::deEntero(-1) ? u'-' + valor : coeficiente.texto() + u' ' + valor;
}

} // namespace

QString textoDeDefinicion(const DefinicionRecurrente &definicion)
{
    const QString anterior = sumando(definicion.alfa, u"f(n-1)"_s);
    const bool resta = definicion.beta < Moneda();
    const QString deDos = sumando(resta ? -definicion.beta : definicion.beta, u"f(n-2)"_s);
    return u"f(n) = %1 %2 %3,  f(1) = %4,  f(2) = %5"_s.arg(
        anterior, resta ? u"-"_s : u"+"_s, deDos, definicion.f1.texto(), definicion.f2.texto());
}

QList<Moneda> primerosValores(const DefinicionRecurrente &definicion, int cuantos)
{
    QList<Moneda> valores{definicion.f1, definicion.f2};
    try {
        while (valores.size() < cuantos) {
            const Moneda anterior = valores.at(valores.size() - 2);
            valores << definicion.alfa * valores.constLast() + definicion.beta * anterior;
        }
    } catch (const ErrorEjecucion &) {
        // The values that fit are worth showing.
    }
    return valores;
}
