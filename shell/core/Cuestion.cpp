// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/Cuestion.h"

#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

Juicio Cuestion::juzga(const QString &respuesta) const
{
    const RespuestaLeida leida = leeRespuesta(respuesta, forma);
    switch (leida.estado) {
    case RespuestaLeida::Vacia:
        return {false, Traduce(u"Escriba una respuesta."_s), false};
    case RespuestaLeida::NoEntendida:
        return {false, Traduce(u"No se ha juzgado: %1."_s).arg(leida.leo), false};
    case RespuestaLeida::EsLaPregunta:
        return {false, Traduce(u"No se ha juzgado: eso es la pregunta."_s), false};
    case RespuestaLeida::Leida:
        break;
    }
    return juez(leida.numeros.join(u'+'));
}
