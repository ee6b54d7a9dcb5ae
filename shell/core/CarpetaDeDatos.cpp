// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/CarpetaDeDatos.h"

#include "shell/core/clsSesion.h"

#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Clave = u"Programa/CarpetaDeDatos"_s;

} // namespace

QString carpetaDeDatos()
{
    const QString otra = Sesión().recuerda(Clave).toString();
    return otra.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
                          : otra;
}

void ponCarpetaDeDatos(const QString &carpeta)
{
    Sesión().anota(Clave, carpeta);
}
