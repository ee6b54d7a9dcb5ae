#include "lessons/primes/FactoresGrandes.h"

#include "bignum/gateway/ModBignum.h"

#include <cmath>

namespace {

/// At least the number of different primes that a number of so many digits can have: k of them have
/// a product above k!, and k! > (k/e)^k.
qsizetype maximoDePrimos(qsizetype digitos)
{
    qsizetype k = 3;
    const auto cabe = [&] {
        const auto veces = static_cast<double>(k);
        return veces * std::log10(veces / std::exp(1.0)) <= static_cast<double>(digitos);
    };
    while (cabe())
        ++k;
    return k;
}

} // namespace

FactoresGrandes factorizaGrande(const QString &n)
{
    const qsizetype cuantos = maximoDePrimos(n.size());
    QStringList primos(cuantos), exponentes(cuantos);
    FactoresGrandes resultado;
    resultado.completa = Factoriza(n, primos, exponentes) != 0;
    for (qsizetype i = 0; i < cuantos && !primos[i].isEmpty(); ++i)
        resultado.filas.append({primos[i], exponentes[i]});
    return resultado;
}
