// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/Escritorio.h"

#include <QSettings>
#include <windows.h>

using namespace Qt::Literals::StringLiterals;

bool escritorioSinMovimiento()
{
    BOOL animaciones = TRUE;
    return ::SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &animaciones, 0) && !animaciones;
}

bool escritorioOscuro()
{
    const QSettings colores(u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\"
                            "Themes\\Personalize"_s,
                            QSettings::NativeFormat);
    return !colores.value(u"AppsUseLightTheme"_s, true).toBool();
}
