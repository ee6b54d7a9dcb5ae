#include "lessons/primes/clsFactorPrimo.h"

#include "lessons/primes/ColFactores.h"

clsFactorPrimo::clsFactorPrimo(Moneda primo, std::int32_t exponente)
    : m_primo(primo), m_exponente(exponente)
{
}

clsFactorPrimo::~clsFactorPrimo() = default;

ColFactores &clsFactorPrimo::Factores()
{
    if (!m_factores)
        m_factores = std::make_unique<ColFactores>();
    return *m_factores;
}

void clsFactorPrimo::ponFactores(std::unique_ptr<ColFactores> factores)
{
    m_factores = std::move(factores);
}
