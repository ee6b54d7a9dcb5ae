// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/FibonacciRecursivo.h"

#include "shell/core/MejorDeVarias.h"

namespace {

/// Up to this n, 8361 calls, a computation takes less than 50 microseconds: of these, 64 may go by
/// before the clock is read.
constexpr int MayorDeUnTiron = 18;

qint64 fibonacci(int n, qint64 &llamadas)
{
    ++llamadas;
    if (n < 2)
        return n;
    const qint64 anterior = fibonacci(n - 1, llamadas);
    return anterior + fibonacci(n - 2, llamadas);
}

} // namespace

Tarea<std::optional<FibonacciRecursivo::Medida>> FibonacciRecursivo::mide(int n, Billete billete)
{
    MejorDeVarias medida;
    qint64 valor = 0;
    while (!medida.basta()) {
        co_await billete.ceder();
        m_tiempo = {};
        m_llamadas = 0;
        if (n <= MayorDeUnTiron)
            valor = deUnTiron(n, medida.veces());
        for (int i = 0; n > MayorDeUnTiron && i < medida.veces(); ++i) {
            m_llamadas = 0;
            valor = co_await porPartes(n, billete);
        }
        if (billete.detenida())
            co_return std::nullopt;
        medida.anota(m_tiempo);
    }
    co_return Medida{valor, m_llamadas, medida.nanosegundos()};
}

qint64 FibonacciRecursivo::deUnTiron(int n, std::int32_t veces)
{
    using Reloj = std::chrono::steady_clock;
    // The compiler may not know that n is the same in every turn.
    volatile int indice = n;
    const qint64 antes = m_llamadas;
    qint64 valor = 0;
    const auto inicio = Reloj::now();
    for (std::int32_t i = 0; i < veces; ++i) {
        m_llamadas = antes;
        valor = fibonacci(indice, m_llamadas);
    }
    m_tiempo += Reloj::now() - inicio;
    return valor;
}

Tarea<qint64> FibonacciRecursivo::porPartes(int n, Billete billete)
{
    if (n <= MayorDeUnTiron)
        co_return deUnTiron(n, 1);
    ++m_llamadas;
    co_await billete.ceder();
    if (billete.detenida())
        co_return n;
    const qint64 anterior = co_await porPartes(n - 1, billete);
    const qint64 otro = co_await porPartes(n - 2, billete);
    co_return anterior + otro;
}
