#include "shell/core/EnteroAcotado.h"

#include "bignum/gateway/ModBignum.h"

std::optional<std::int32_t> evaluaEnteroAcotado(const QString &expresion, std::int32_t minimo,
                                                std::int32_t maximo)
{
    bool esEntero = false;
    const std::int32_t valor = Evalua(QString(expresion), QString::number(maximo)).toInt(&esEntero);
    return esEntero && valor >= minimo ? std::optional(valor) : std::nullopt;
}
