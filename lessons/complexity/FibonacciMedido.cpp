// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/FibonacciMedido.h"

#include "shell/core/FibonacciRecursivo.h"
#include "shell/core/MejorDeVarias.h"

#include <array>

namespace {

constexpr int MayorIndice = 92;

/// Remembers what it has computed; 0 stands for what it has not.
using Memoria = std::array<qint64, MayorIndice + 1>;

qint64 conMemoria(int n, qint64 &llamadas, Memoria &memoria)
{
    ++llamadas;
    if (n < 2)
        return n;
    qint64 &valor = memoria[static_cast<std::size_t>(n)];
    if (valor == 0) {
        const qint64 anterior = conMemoria(n - 1, llamadas, memoria);
        valor = anterior + conMemoria(n - 2, llamadas, memoria);
    }
    return valor;
}

qint64 iterativo(int n, qint64 &sumas)
{
    if (n == 0)
        return 0;
    qint64 anterior = 0;
    qint64 actual = 1;
    for (int i = 2; i <= n; ++i) {
        const qint64 siguiente = anterior + actual;
        anterior = actual;
        actual = siguiente;
        ++sumas;
    }
    return actual;
}

/// Times what gives a value and counts its steps.
template <typename Calculo>
Medida mide(int n, Calculo calculo)
{
    using Reloj = std::chrono::steady_clock;
    // The compiler may not know that n is the same in every turn.
    volatile int indice = n;
    MejorDeVarias tiempo;
    Medida medida;
    while (!tiempo.basta()) {
        const auto inicio = Reloj::now();
        for (std::int32_t i = 0; i < tiempo.veces(); ++i) {
            medida.pasos = 0;
            medida.valor = calculo(indice, medida.pasos);
        }
        tiempo.anota(Reloj::now() - inicio);
    }
    medida.nanosegundos = tiempo.nanosegundos();
    return medida;
}

} // namespace

Medida mideConMemoria(int n)
{
    return mide(n, [](int indice, qint64 &llamadas) {
        Memoria memoria{};
        return conMemoria(indice, llamadas, memoria);
    });
}

Medida mideIterativa(int n)
{
    return mide(n, iterativo);
}

Tarea<std::optional<MedidasDeFibonacci>> mideFibonacci(int n, Billete billete)
{
    FibonacciRecursivo recursivo;
    const auto recursiva = co_await recursivo.mide(n, billete);
    if (!recursiva)
        co_return std::nullopt;
    MedidasDeFibonacci medidas;
    medidas.recursiva = {recursiva->valor, recursiva->llamadas, recursiva->nanosegundos};
    co_await billete.ceder();
    medidas.conMemoria = mideConMemoria(n);
    co_await billete.ceder();
    medidas.iterativa = mideIterativa(n);
    if (billete.detenida())
        co_return std::nullopt;
    co_return medidas;
}
