// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/Escritorio.h"

#include <QSettings>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What a settings file of the user says; not valid when it does not.
QVariant valorDe(const QString &archivo, const QString &clave)
{
    const QString ruta =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' + archivo;
    return QSettings(ruta, QSettings::IniFormat).value(clave);
}

} // namespace

/// `gtk-enable-animations` of GTK 3 and 4, `AnimationDurationFactor` of KDE.
bool escritorioSinMovimiento()
{
    for (const QString &archivo : {u"gtk-3.0/settings.ini"_s, u"gtk-4.0/settings.ini"_s}) {
        const QVariant animaciones = valorDe(archivo, u"Settings/gtk-enable-animations"_s);
        if (animaciones.isValid() && !animaciones.toBool())
            return true;
    }
    const QVariant duracion = valorDe(u"kdeglobals"_s, u"KDE/AnimationDurationFactor"_s);
    return duracion.isValid() && duracion.toDouble() == 0;
}

/// The palette is the desktop's.
bool escritorioOscuro()
{
    return false;
}
