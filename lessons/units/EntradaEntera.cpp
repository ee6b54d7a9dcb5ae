#include "lessons/units/EntradaEntera.h"

#include "bignum/ModBignum.h"

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

std::optional<std::int32_t> evaluaPequeno(const QString &expresion, std::int32_t mayor)
{
    const QString valor = Evalua(QString(expresion), QString::number(mayor));
    bool cabe = false;
    const std::int32_t numero = esEntero(valor) ? valor.toInt(&cabe) : 0;
    return cabe ? std::optional(numero) : std::nullopt;
}

std::optional<QString> evaluaGrande(const QString &expresion)
{
    QString valor = Evalua(QString(expresion));
    return esEntero(valor) ? std::optional(std::move(valor)) : std::nullopt;
}
