#pragma once

#include <cstdint>
#include <vector>

/// The primes as libbignum lists them.
struct PrimosDelServicio
{
    std::int32_t cuantos = 0;           ///< as the library counts them
    std::vector<std::uint32_t> numeros; ///< ascending
};

/// The primes up to `limite`.
PrimosDelServicio listaPrimos(std::int32_t limite);
