// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/Cuenta.h"

#include <array>
#include <windows.h>

QString nombreDeCuenta()
{
    constexpr DWORD masLargo = 257; // UNLEN and the NUL
    std::array<wchar_t, masLargo> bufer;
    DWORD letras = masLargo;
    if (!::GetUserNameW(bufer.data(), &letras) || letras == 0)
        return {};
    return QString::fromWCharArray(bufer.data(), static_cast<qsizetype>(letras) - 1);
}
