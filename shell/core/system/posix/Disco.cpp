// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/Disco.h"

#include <QFileDevice>
#include <unistd.h>

bool llegaAlDisco(QFileDevice &archivo)
{
    return archivo.flush() && ::fsync(archivo.handle()) == 0;
}

bool soloParaSuDuena(QFileDevice &archivo)
{
    return archivo.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}
