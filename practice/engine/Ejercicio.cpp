// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/engine/Ejercicio.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

Fallo Fallo::bien(const QString &palabra)
{
    return {true, palabra, u"bien"_s};
}

Fallo Fallo::mal(const QString &palabra, const QString &nota)
{
    return {false, palabra, nota};
}

bool mismosNumeros(const RespuestaLeida &respuesta, const QStringList &esperados)
{
    return respuesta.numeros == esperados;
}

bool mismosEnOtroOrden(const RespuestaLeida &respuesta, QStringList esperados)
{
    QStringList dados = respuesta.numeros;
    std::sort(dados.begin(), dados.end());
    std::sort(esperados.begin(), esperados.end());
    return dados == esperados;
}
