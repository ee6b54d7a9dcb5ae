// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/Cuenta.h"

#include "shell/core/system/Archivos.h"
#include "shell/web/NombreDeCuenta.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

// A browser has no accounts: the student gives a name once.

namespace {

constexpr qint64 LargoMaximo = 255;

QString rutaDelNombre()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           u"/Numora/cuenta"_s;
}

} // namespace

QString nombreDeCuenta()
{
    const QString ruta = rutaDelNombre();
    return QFileInfo::exists(ruta) ? QString::fromUtf8(leeArchivo(ruta, LargoMaximo))
                                   : u"estudiante"_s;
}

void ponNombreDeCuenta(const QString &nombre)
{
    QDir().mkpath(QFileInfo(rutaDelNombre()).absolutePath());
    escribeArchivo(rutaDelNombre(), nombre.toUtf8());
}
