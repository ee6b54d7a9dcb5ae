// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/Cuenta.h"

#include <QFile>
#include <array>
#include <pwd.h>
#include <unistd.h>

QString nombreDeCuenta()
{
    passwd cuenta;
    passwd *hallada = nullptr;
    std::array<char, 16384> bufer;
    if (getpwuid_r(getuid(), &cuenta, bufer.data(), bufer.size(), &hallada) != 0 || !hallada)
        return {};
    return QFile::decodeName(hallada->pw_name);
}
