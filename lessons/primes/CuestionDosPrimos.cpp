// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/CuestionDosPrimos.h"

#include "bignum/gateway/Azar.h"

#include <cmath>
#include <cstdlib>

CuestionDosPrimos::CuestionDosPrimos()
    : m_digitos(static_cast<std::int16_t>(std::floor(AzarUnitario() * 101 + 100)))
{
}

CuestionDosPrimos::Juicio CuestionDosPrimos::juzga(const QString &primo1, const QString &primo2,
                                                   const QString &binario) const
{
    if (binario.size() != m_digitos)
        return Juicio::OtraLongitud;
    return std::abs(primo1.size() - primo2.size()) <= 1 ? Juicio::Acertada : Juicio::Lejanos;
}
