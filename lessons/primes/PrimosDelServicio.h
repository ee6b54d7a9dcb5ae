// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <cstdint>
#include <functional>
#include <vector>

/// The primes as libbignum lists them.
struct PrimosDelServicio
{
    std::int32_t cuantos = 0;           ///< as the library counts them
    std::vector<std::uint32_t> numeros; ///< ascending; fewer when the run was stopped
};

/// The primes up to `limite`. `avance` is told how much of the way has been gone, in percent.
Tarea<PrimosDelServicio> listaPrimos(std::int32_t limite, Billete billete,
                                     std::function<void(int porcentaje)> avance);
