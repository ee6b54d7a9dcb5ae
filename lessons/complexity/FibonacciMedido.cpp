#include "lessons/complexity/FibonacciMedido.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace {

using Reloj = std::chrono::steady_clock;

/// One computation may be shorter than a tick of the clock, so that as many as fill this are timed
/// together.
constexpr std::chrono::microseconds TandaMinima{200};
/// The fastest of as many turns as fill this counts: what else the machine does only delays.
constexpr std::chrono::milliseconds TiempoMinimo{10};
constexpr int MayorIndice = 92;

qint64 recursivo(int n, qint64 &llamadas, Corrida &corrida)
{
    ++llamadas;
    corrida.ceder();
    if (n < 2 || corrida.detenida())
        return n;
    const qint64 anterior = recursivo(n - 1, llamadas, corrida);
    return anterior + recursivo(n - 2, llamadas, corrida);
}

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

qint64 calcula(FormaDeCalculo forma, int n, qint64 &pasos, Corrida &corrida)
{
    switch (forma) {
    case FormaDeCalculo::Recursiva:
        return recursivo(n, pasos, corrida);
    case FormaDeCalculo::ConMemoria: {
        Memoria memoria{};
        return conMemoria(n, pasos, memoria);
    }
    case FormaDeCalculo::Iterativa:
        return iterativo(n, pasos);
    }
    return 0;
}

} // namespace

Medida mideFibonacci(FormaDeCalculo forma, int n, Corrida &corrida)
{
    // A run of its own, which hands the yields on and takes their time.
    Reloj::duration cediendo{};
    Corrida *propia = nullptr;
    Corrida medida([&] {
        const auto antes = Reloj::now();
        corrida.cederYa();
        if (corrida.detenida())
            propia->detener();
        cediendo += Reloj::now() - antes;
    });
    propia = &medida;

    Medida resultado;
    // The compiler may not know that n is the same in every turn.
    volatile int indice = n;
    const auto tanda = [&](qint64 veces) {
        cediendo = {};
        const auto inicio = Reloj::now();
        for (qint64 i = 0; i < veces; ++i) {
            resultado.pasos = 0;
            resultado.valor = calcula(forma, indice, resultado.pasos, medida);
        }
        return Reloj::now() - inicio - cediendo;
    };
    qint64 veces = 1;
    auto mejor = tanda(veces);
    while (mejor < TandaMinima && !medida.detenida()) {
        veces *= 2;
        mejor = tanda(veces);
    }
    for (auto total = mejor; total < TiempoMinimo && !medida.detenida();) {
        const auto otra = tanda(veces);
        mejor = std::min(mejor, otra);
        total += otra;
    }
    resultado.nanosegundos =
        std::chrono::duration<double, std::nano>(mejor).count() / static_cast<double>(veces);
    return resultado;
}
