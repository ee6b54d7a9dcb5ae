#include "lessons/primes/DivisionTentativa.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/Corrida.h"
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

} // namespace

ColFactores FactorizaIngenuo(Moneda &n, Corrida &corrida)
{
    ColFactores factores;
    Moneda d = Dos;
    while (n > Uno && !corrida.detenida()) {
        corrida.ceder();
        if (ModCy(n, d) != Cero) {
            d = d == Dos ? Tres : d + Dos;
        } else {
            factores.Add(d, 1);
            n = cociente(n, d);
        }
    }
    return factores;
}

ColFactores FactorizaMejorado(Moneda n, Corrida &corrida)
{
    ColFactores factores;
    // Every prime divides 0 for ever.
    if (n == Cero)
        return factores;
    extrae(n, Dos, factores);
    extrae(n, Tres, factores);
    Moneda d = Moneda::deEntero(5);
    std::int16_t k = 0;
    while (n > Uno) {
        corrida.ceder();
        if (std::sqrt(n.real()) < d.real()) {
            factores.Add(n, 1);
            break;
        }
        if (ModCy(n, d) == Cero) {
            factores.Add(d, 1);
            n = cociente(n, d);
            continue;
        }
        // From 6m - 1 to 6m + 1 it is two, from there to the next 6m - 1 four.
        d = d + Moneda::deEntero(k % 2 == 0 ? 2 : 4);
        k = siguiente(k);
    }
    return factores;
}
