#include "lessons/primes/PrimosDelServicio.h"

#include "bignum/bignum.h"

#include <span>

PrimosDelServicio listaPrimos(std::int32_t limite)
{
    PrimosDelServicio lista;
    lista.cuantos = ListPrimes(limite);
    lista.numeros.reserve(static_cast<std::size_t>(lista.cuantos));
    const auto recoge = [](const std::uint64_t *primos, std::int64_t n, void *destino) {
        for (const std::uint64_t primo : std::span(primos, static_cast<std::size_t>(n)))
            static_cast<std::vector<std::uint32_t> *>(destino)->push_back(
                static_cast<std::uint32_t>(primo));
        return std::int32_t(1);
    };
    PrimesUpTo(limite, recoge, &lista.numeros);
    return lista;
}
