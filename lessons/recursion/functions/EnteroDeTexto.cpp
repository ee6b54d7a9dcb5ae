#include "lessons/recursion/functions/EnteroDeTexto.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/Moneda.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

std::int32_t enteroDeTexto(const QString &texto, const QString &nombre)
{
    if (!EsNumerico(texto)) {
        throw ErrorEjecucion(ErrorEjecucion::TipoNoCoincide,
                             Traduce(u"«%1» no es un número."_s).arg(nombre));
    }
    try {
        // Only exponents go through a double; everything else is read exactly.
        const auto exacto = Moneda::deTexto(texto.trimmed());
        const Moneda valor =
            exacto ? *exacto : Moneda::deReal(NumVal(QString(texto).replace(u',', u'.')));
        return valor.aEntero32();
    } catch (const ErrorEjecucion &error) {
        throw ErrorEjecucion(error.numero(), Traduce(u"«%1» es demasiado grande."_s).arg(nombre));
    }
}
