#include "lessons/recursion/TextoDeDefinicion.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// "2 f(n-1)", with nothing before a coefficient of 1.
QString sumando(Moneda coeficiente, const QString &valor)
{
    return coeficiente == Moneda::deEntero(1) ? valor : coeficiente.texto() + u' ' + valor;
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
