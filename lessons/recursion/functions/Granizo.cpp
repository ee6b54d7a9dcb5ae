#include "lessons/recursion/functions/Granizo.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/Lectura.h"

using namespace Qt::Literals::StringLiterals;

Tarea<FinDeGranizo> correGranizo(QString inicio, std::shared_ptr<HistoriaGranizo> historia,
                                 Billete billete)
{
    historia->reinicia(inicio);
    QString valor = inicio;
    do {
        const QString anterior = valor;
        valor = siguienteGranizo(anterior);
        historia->agrega(valor);
        co_await billete.ceder();
        if (billete.detenida())
            co_return FinDeGranizo::Detenido;
        if (esError(valor))
            co_return esError(Modulo(anterior, u"2"_s)) ? FinDeGranizo::SinEntero
                                                        : FinDeGranizo::DemasiadasCifras;
    } while (valor != u"1"_s);
    co_return FinDeGranizo::EnUno;
}
