// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/FactoresHallados.h"

#include "bignum/bignum.h"
#include "bignum/gateway/Windows1252.h"

#include <exception>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What the library hands back with every factor.
struct Receptor
{
    const RecibeFactor &recibe;
    std::exception_ptr error{}; ///< no exception may pass through the library
};

FactorHallado hallado(const BignumFactor &factor)
{
    return {.base = QString::fromLatin1(factor.base),
            .exponente = factor.exponent,
            .primo = factor.isPrime != 0,
            .metodo = static_cast<MetodoDeFactor>(factor.method),
            .cotaDeCurva = factor.curveBound,
            .curvas = factor.curves,
            .relaciones = factor.relations,
            .parciales = factor.partials,
            .polinomios = factor.polynomials,
            .primosDeBase = factor.basePrimes,
            .columnas = factor.columns,
            .segundosDelMetodo = factor.methodSeconds,
            .segundos = factor.seconds};
}

std::int32_t entrega(const BignumFactor *factor, void *contexto)
{
    Receptor &receptor = *static_cast<Receptor *>(contexto);
    try {
        return receptor.recibe(hallado(*factor)) ? 1 : 0;
    } catch (...) {
        receptor.error = std::current_exception();
        return 0;
    }
}

FinDeFactores fin(std::int32_t codigo)
{
    switch (codigo) {
    case BIGNUM_ALL_PRIMES:
        return FinDeFactores::TodosPrimos;
    case BIGNUM_COMPOSITE_LEFT:
        return FinDeFactores::QuedaCompuesto;
    case BIGNUM_FACTORS_STOPPED:
        return FinDeFactores::Detenido;
    case BIGNUM_NO_NUMBER:
        return FinDeFactores::NoEsNumero;
    default:
        return FinDeFactores::SinMemoria;
    }
}

} // namespace

FinDeFactores BuscaFactores(const QString &n, const RecibeFactor &recibe)
{
    Receptor receptor{recibe};
    const QByteArray texto = aWindows1252(n).value_or("?"_ba);
    const FinDeFactores como = fin(FactorsAsFound(texto.constData(), entrega, &receptor));
    if (receptor.error)
        std::rethrow_exception(receptor.error);
    return como;
}
