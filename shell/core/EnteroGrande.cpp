#include "shell/core/EnteroGrande.h"

#include "shell/core/Lectura.h"

std::optional<QString> evaluaEnteroGrande(const QString &expresion)
{
    const auto leido = leeEntero(expresion);
    return leido ? std::optional(*leido) : std::nullopt;
}
