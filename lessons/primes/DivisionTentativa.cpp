// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/DivisionTentativa.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/ModGlobal.h"

#include <chrono>
#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

const Moneda Cero, Uno = Moneda::deEntero(1), Dos = Moneda::deEntero(2), Tres = Moneda::deEntero(3);

/// Keeps the trace of a run, where somebody wants it.
class Rastreador
{
public:
    Rastreador(RastroDeDivision *rastro, const Billete &billete)
        : m_rastro(rastro), m_billete(billete)
    {
    }

    void alcanza(Moneda divisor)
    {
        if (m_rastro)
            m_rastro->alcanzado = divisor;
    }

    void anota(Moneda factor, bool esElResto = false)
    {
        if (!m_rastro)
            return;
        const auto tiempo = Reloj::now() - m_inicio - (m_billete.tiempoCedido() - m_cedidoAntes);
        m_rastro->divisiones.append({factor, std::chrono::duration<double>(tiempo).count(),
                                     esElResto, m_rastro->alcanzado});
    }

private:
    using Reloj = std::chrono::steady_clock;

    RastroDeDivision *m_rastro;
    const Billete &m_billete;
    Reloj::time_point m_inicio = Reloj::now();
    std::chrono::nanoseconds m_cedidoAntes = m_billete.tiempoCedido();
};

void extrae(Moneda &n, Moneda primo, ColFactores &factores, Rastreador &rastreador)
{
    rastreador.alcanza(primo);
    while (ModCy(n, primo) == Cero) {
        factores.Add(primo, 1);
        rastreador.anota(primo);
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

Tarea<ColFactores> FactorizaIngenuo(Moneda &n, Billete billete, RastroDeDivision *rastro)
{
    ColFactores factores;
    Rastreador rastreador(rastro, billete);
    Moneda d = Dos;
    while (n > Uno && !billete.detenida()) {
        co_await billete.ceder();
        const bool divide = divideAlguno(n, d);
        rastreador.alcanza(d);
        if (divide) {
            factores.Add(d, 1);
            rastreador.anota(d);
            n = cociente(n, d);
        }
    }
    co_return factores;
}

Tarea<ColFactores> FactorizaMejorado(Moneda n, Billete billete, RastroDeDivision *rastro)
{
    ColFactores factores;
    Rastreador rastreador(rastro, billete);
    // Every prime divides 0 for ever.
    if (n == Cero)
        co_return factores;
    extrae(n, Dos, factores, rastreador);
    extrae(n, Tres, factores, rastreador);
    Moneda d = Moneda::deEntero(5);
    std::int16_t k = 0;
    while (n > Uno) {
        co_await billete.ceder();
        const Hallazgo hallazgo = pruebaSeises(n, d, k);
        rastreador.alcanza(d);
        if (hallazgo == Hallazgo::Raiz) {
            factores.Add(n, 1);
            rastreador.anota(n, true);
            break;
        }
        if (hallazgo == Hallazgo::Divisor) {
            factores.Add(d, 1);
            rastreador.anota(d);
            n = cociente(n, d);
        }
    }
    co_return factores;
}
