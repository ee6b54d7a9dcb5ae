// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/DivisionTentativa.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/ModGlobal.h"

#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

const Moneda Cero, Uno = Moneda::deEntero(1), Dos = Moneda::deEntero(2), Tres = Moneda::deEntero(3);

void extrae(Moneda &n, Moneda primo, ColFactores &factores)
{
    while (ModCy(n, primo) == Cero) {
        factores.Add(primo, 1);
        n = cociente(n, primo);
    }
}

std::int16_t siguiente(std::int16_t paso)
{
    if (paso == std::numeric_limits<std::int16_t>::max())
        throw ErrorEjecucion(
            ErrorEjecucion::Desbordamiento,
            Traduce(u"El algoritmo mejorado cuenta en 16 bits los divisores que fallan, y no pasa "
                    "de 32 767. Pulse el botón de detener y pruebe con el algoritmo avanzado."_s));
    return static_cast<std::int16_t>(paso + 1);
}

/// A loop that awaits at every step runs half as fast again: so many trials run between two yields.
constexpr int Tramo = 64;

/// Tries divisors until one divides, which is then `d`; false when it has tried as many as a
/// stretch holds.
bool divideAlguno(Moneda n, Moneda &d)
{
    Moneda divisor = d;
    for (int i = 0; i < Tramo; ++i) {
        if (ModCy(n, divisor) == Cero) {
            d = divisor;
            return true;
        }
        divisor = divisor == Dos ? Tres : divisor + Dos;
    }
    d = divisor;
    return false;
}

enum class Hallazgo { Nada, Divisor, Raiz };

/// Tries the numbers 6m ± 1: until one divides, until it is above the square root, or as many as a
/// stretch holds.
Hallazgo pruebaSeises(Moneda n, Moneda &d, std::int16_t &k)
{
    const double raiz = std::sqrt(n.real());
    for (int i = 0; i < Tramo; ++i) {
        if (raiz < d.real())
            return Hallazgo::Raiz;
        if (ModCy(n, d) == Cero)
            return Hallazgo::Divisor;
        // From 6m - 1 to 6m + 1 it is two, from there to the next 6m - 1 four.
        d = d + Moneda::deEntero(k % 2 == 0 ? 2 : 4);
        k = siguiente(k);
    }
    return Hallazgo::Nada;
}

} // namespace

Tarea<ColFactores> FactorizaIngenuo(Moneda &n, Billete billete)
{
    ColFactores factores;
    Moneda d = Dos;
    while (n > Uno && !billete.detenida()) {
        co_await billete.ceder();
        if (divideAlguno(n, d)) {
            factores.Add(d, 1);
            n = cociente(n, d);
        }
    }
    co_return factores;
}

Tarea<ColFactores> FactorizaMejorado(Moneda n, Billete billete)
{
    ColFactores factores;
    // Every prime divides 0 for ever.
    if (n == Cero)
        co_return factores;
    extrae(n, Dos, factores);
    extrae(n, Tres, factores);
    Moneda d = Moneda::deEntero(5);
    std::int16_t k = 0;
    while (n > Uno) {
        co_await billete.ceder();
        const Hallazgo hallazgo = pruebaSeises(n, d, k);
        if (hallazgo == Hallazgo::Raiz) {
            factores.Add(n, 1);
            break;
        }
        if (hallazgo == Hallazgo::Divisor) {
            factores.Add(d, 1);
            n = cociente(n, d);
        }
    }
    co_return factores;
}
