// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/OtrasEntradas.h"

#include "bignum/bignum.h"

#include <QByteArray>
#include <span>

std::int32_t CuentaPrimos(std::int32_t limite)
{
    return ListPrimes(limite);
}

void AgregaPrimos(std::int64_t desde, std::int32_t hasta, std::vector<std::uint32_t> &lista)
{
    const auto recoge = [](const std::uint64_t *primos, std::int64_t n, void *destino) {
        for (const std::uint64_t primo : std::span(primos, static_cast<std::size_t>(n)))
            static_cast<std::vector<std::uint32_t> *>(destino)->push_back(
                static_cast<std::uint32_t>(primo));
        return std::int32_t(1);
    };
    PrimesBetween(desde, hasta, recoge, &lista);
}

namespace {

/// What an entry of the library writes into its buffer and its cost.
template <typename Entrada>
FibonacciCalculado recibe(const Entrada &entrada)
{
    constexpr int bufer = 24576;
    QByteArray texto(bufer, '\0');
    BignumCost coste{};
    entrada(texto.data(), &coste);
    return {QString::fromLatin1(texto.constData()), coste.additions, coste.products,
            std::chrono::nanoseconds(coste.nanoseconds)};
}

} // namespace

FibonacciCalculado CalculaFibonacci(ViaDeFibonacci via, int n, std::int32_t veces)
{
    const std::int32_t metodo =
        via == ViaDeFibonacci::Iteracion ? BIGNUM_ITERATION : BIGNUM_DOUBLING;
    return recibe(
        [&](char *texto, BignumCost *coste) { ::Fibonacci(metodo, n, veces, texto, coste); });
}

FibonacciCalculado SigueFibonacci(int desde, int n)
{
    return recibe([&](char *texto, BignumCost *coste) { ::FibonacciFrom(desde, n, texto, coste); });
}
