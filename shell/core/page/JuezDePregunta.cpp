// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/page/JuezDePregunta.h"

#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/page/TextoBuscado.h"

#include <QStringList>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

std::optional<bool> leeSiNo(const QString &texto)
{
    const QString palabra = paraBuscar(texto.trimmed());
    if (QStringList{u"si"_s, u"s"_s, u"yes"_s, u"y"_s}.contains(palabra))
        return true;
    return QStringList{u"no"_s, u"n"_s}.contains(palabra) ? std::optional(false) : std::nullopt;
}

Juicio juicio(bool acertada)
{
    return {acertada, acertada ? Traduce(u"¡Correcto!"_s) : Traduce(u"No es esa la respuesta."_s)};
}

} // namespace

Juicio juzgaPregunta(const QString &esperada, const QString &respuesta)
{
    if (const auto cierta = leeSiNo(esperada)) {
        const auto dicha = leeSiNo(respuesta);
        return dicha ? juicio(*dicha == *cierta)
                     : Juicio{false, Traduce(u"La respuesta es sí o no."_s), false};
    }
    const auto valor = calculaEntero(esperada);
    return Cuestion{{}, {}, [&](const QString &leida) { return juicio(leida == valor); }}.juzga(
        respuesta);
}
