#include "shell/core/EnteroGrande.h"

#include "bignum/gateway/ModBignum.h"

#include <algorithm>

namespace {

/// Results of Evalua that are fractions or no numbers are no whole numbers.
bool esEntero(QStringView texto)
{
    if (texto.startsWith(u'-'))
        texto = texto.sliced(1);
    return !texto.isEmpty() &&
           std::all_of(texto.begin(), texto.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace

std::optional<QString> evaluaEnteroGrande(const QString &expresion)
{
    QString valor = Evalua(QString(expresion));
    return esEntero(valor) ? std::optional(std::move(valor)) : std::nullopt;
}
