// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/Azar.h"

#include "bignum/gateway/ErrorEjecucion.h"

#include <chrono>
#include <cmath>
#include <limits>
#include <random>

double AzarUnitario()
{
    // Draws may follow each other within one tick of the clock; the counter keeps them apart.
    static std::uint64_t extracciones = 0;
    const auto reloj =
        static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
    std::seed_seq semilla{static_cast<std::uint32_t>(reloj),
                          static_cast<std::uint32_t>(reloj >> 32),
                          static_cast<std::uint32_t>(++extracciones)};
    std::mt19937_64 generador(semilla);
    // 53 bits fill the mantissa: dividing by 2^53 is exact and never reaches 1.
    return std::ldexp(static_cast<double>(generador() >> 11), -53);
}

std::int32_t AleatorioEntre(std::int32_t a, std::int32_t b)
{
    const std::int64_t cuantos = std::int64_t(b) - a + 1;
    if (cuantos > std::numeric_limits<std::int32_t>::max() ||
        cuantos < std::numeric_limits<std::int32_t>::min())
        throw ErrorEjecucion(ErrorEjecucion::Desbordamiento);
    return static_cast<std::int32_t>(
        a + static_cast<std::int64_t>(std::floor(AzarUnitario() * static_cast<double>(cuantos))));
}
