// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/PrimosDelServicio.h"

#include "bignum/gateway/OtrasEntradas.h"

#include <algorithm>

Tarea<PrimosDelServicio> listaPrimos(std::int32_t limite, Billete billete,
                                     std::function<void(int porcentaje)> avance)
{
    // A millisecond's work between two yields.
    constexpr std::int64_t tramo = 1'000'000;
    PrimosDelServicio lista;
    lista.cuantos = CuentaPrimos(limite);
    lista.numeros.reserve(static_cast<std::size_t>(lista.cuantos));
    for (std::int64_t desde = 0; desde <= limite && !billete.detenida(); desde += tramo) {
        const std::int64_t hasta = std::min<std::int64_t>(limite, desde + tramo - 1);
        AgregaPrimos(desde, static_cast<std::int32_t>(hasta), lista.numeros);
        if (avance)
            avance(static_cast<int>(100 * hasta / std::max(limite, 1)));
        co_await billete.ceder();
    }
    co_return lista;
}
