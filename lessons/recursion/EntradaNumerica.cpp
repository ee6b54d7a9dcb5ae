#include "lessons/recursion/EntradaNumerica.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

std::optional<Moneda> evaluaEntrada(const QString &expresion)
{
    const QString valor = Evalua(QString(expresion), QString::number(Moneda::MaximoEntero));
    if (!EsNumerico(valor))
        return {};
    return Moneda::deTexto(valor);
}

std::optional<std::int32_t> evaluaModulo(const QString &expresion)
{
    const std::optional<Moneda> valor = evaluaEntrada(expresion);
    if (!valor || *valor <= Moneda())
        return {};
    const std::int32_t modulo = valor->aEntero32();
    return modulo > 0 ? std::optional(modulo) : std::nullopt;
}

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
