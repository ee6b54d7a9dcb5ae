// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/Escritorio.h"

#include <windows.h>

bool escritorioSinMovimiento()
{
    BOOL animaciones = TRUE;
    return ::SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &animaciones, 0) && !animaciones;
}
