// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/fibonacci/CalculoFibonacci.h"

#include "bignum/gateway/OtrasEntradas.h"
#include "shell/core/MejorDeVarias.h"

#include <algorithm>

namespace {

/// Additions between two yields, some milliseconds of the longest numbers.
constexpr int TramoDeSumas = 10'000;

/// F(n) by additions so many times over, stretch by stretch, so that a click need not wait for all
/// of them. Only the additions take time.
Tarea<FibonacciCalculado> sumaPorTramos(int n, std::int32_t veces, Billete billete)
{
    FibonacciCalculado total;
    for (; veces > 0; --veces) {
        total.sumas = 0;
        for (int desde = 0; desde < n && !billete.detenida(); desde += TramoDeSumas) {
            const auto tramo = SigueFibonacci(desde, std::min(desde + TramoDeSumas, n));
            total.valor = tramo.valor;
            total.sumas += tramo.sumas + (desde > 0 ? 1 : 0); // the one to F(desde + 1)
            total.tiempo += tramo.tiempo;
            co_await billete.ceder();
        }
    }
    co_return total;
}

/// The two methods that work on numbers of any size.
Tarea<FibonacciMedido> midePorNumeros(ViaDeFibonacci via, int n, Billete billete)
{
    MejorDeVarias medida;
    FibonacciMedido resultado;
    while (!medida.basta()) {
        co_await billete.ceder();
        if (billete.detenida())
            co_return FibonacciMedido{};
        FibonacciCalculado turno;
        if (via == ViaDeFibonacci::Iteracion && n > TramoDeSumas)
            turno = co_await sumaPorTramos(n, medida.veces(), billete);
        else
            turno = CalculaFibonacci(via, n, medida.veces());
        if (billete.detenida())
            co_return FibonacciMedido{};
        medida.anota(turno.tiempo);
        resultado = {turno.valor, {0, turno.sumas, turno.productos}, medida.nanosegundos()};
    }
    co_return resultado;
}

} // namespace

int cotaDe(MetodoFibonacci metodo)
{
    // 50 takes 4·10^10 calls.
    return metodo == MetodoFibonacci::Definicion ? 50 : MaximoDeFibonacci;
}

Tarea<FibonacciMedido> CalculoFibonacci::calcula(MetodoFibonacci metodo, int n, Billete billete)
{
    if (metodo == MetodoFibonacci::Definicion)
        return porDefinicion(n, std::move(billete));
    return midePorNumeros(metodo == MetodoFibonacci::Iteracion ? ViaDeFibonacci::Iteracion
                                                               : ViaDeFibonacci::Duplicacion,
                          n, std::move(billete));
}

Tarea<FibonacciMedido> CalculoFibonacci::porDefinicion(int n, Billete billete)
{
    const auto medida = co_await m_definicion.mide(n, billete);
    if (!medida)
        co_return FibonacciMedido{{}, {m_definicion.llamadas(), 0, 0}};
    // Each call but the last ones, which are one more than the others, adds two values.
    const qint64 sumas = (medida->llamadas - 1) / 2;
    co_return FibonacciMedido{
        QString::number(medida->valor), {medida->llamadas, sumas, 0}, medida->nanosegundos};
}
