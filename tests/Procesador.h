// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <ctime>

#if defined(Q_OS_WIN)
#include <windows.h>
#endif

/// What this program has computed since it began, in seconds, to a fiftieth: what others compute
/// meanwhile adds nothing.
inline double segundosDeProcesador()
{
#if defined(Q_OS_WIN) // where std::clock goes on while others compute
    FILETIME principio, fin, nucleo, propio;
    ::GetProcessTimes(::GetCurrentProcess(), &principio, &fin, &nucleo, &propio);
    const auto segundos = [](const FILETIME &tiempo) {
        constexpr double porSegundo = 1e7;
        return (tiempo.dwHighDateTime * 4294967296.0 + tiempo.dwLowDateTime) / porSegundo;
    };
    return segundos(nucleo) + segundos(propio);
#else
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
#endif
}
