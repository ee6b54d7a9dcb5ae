// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/Cuestion.h"

#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

Juez juezDeEnteros(const Juez &juez)
{
    return [juez](const QString &respuesta) -> Juicio {
        const auto valor = leeEntero(respuesta);
        return valor ? juez(*valor)
                     : Juicio{false, Traduce(u"La respuesta es un número entero."_s)};
    };
}
