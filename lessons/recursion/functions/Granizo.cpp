#include "lessons/recursion/functions/Granizo.h"

#include "bignum/gateway/ModBignum.h"

using namespace Qt::Literals::StringLiterals;

FinDeGranizo correGranizo(const QString &inicio, HistoriaGranizo &historia, Corrida &corrida)
{
    historia.reinicia(inicio);
    QString valor = inicio;
    do {
        valor = siguienteGranizo(valor);
        historia.agrega(valor);
        corrida.ceder();
        if (corrida.detenida())
            return FinDeGranizo::Detenido;
        if (valor == TextoError)
            return FinDeGranizo::Error;
    } while (valor != u"1"_s);
    return FinDeGranizo::EnUno;
}
