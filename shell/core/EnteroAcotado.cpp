#include "shell/core/EnteroAcotado.h"

#include "shell/core/Lectura.h"

std::optional<std::int32_t> evaluaEnteroAcotado(const QString &expresion, std::int32_t minimo,
                                                std::int32_t maximo)
{
    const auto leido = leeEntero(expresion, minimo, maximo);
    return leido ? std::optional(*leido) : std::nullopt;
}
