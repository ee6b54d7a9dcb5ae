#include "lessons/primes/PrimosDelServicio.h"

#include "bignum/gateway/OtrasEntradas.h"

PrimosDelServicio listaPrimos(std::int32_t limite)
{
    PrimosDelServicio lista;
    lista.cuantos = CuentaPrimos(limite);
    lista.numeros.reserve(static_cast<std::size_t>(lista.cuantos));
    AgregaPrimos(0, limite, lista.numeros);
    return lista;
}
