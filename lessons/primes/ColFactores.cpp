// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/ColFactores.h"

#include "bignum/gateway/ErrorEjecucion.h"

#include <algorithm>
#include <limits>

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

clsFactorPrimo &ColFactores::Add(Moneda primo, std::int32_t exponente)
{
    const QString suClave = clave(primo);
    if (const auto lugar = halla(suClave); lugar != m_factores.end()) {
        clsFactorPrimo &factor = *lugar->factor;
        if (factor.exponente() == std::numeric_limits<std::int32_t>::max())
            throw ErrorEjecucion(ErrorEjecucion::Desbordamiento);
        factor.ponExponente(factor.exponente() + 1);
        return factor;
    }
    m_factores.push_back({suClave, std::make_unique<clsFactorPrimo>(primo, exponente)});
    return *m_factores.back().factor;
}

clsFactorPrimo &ColFactores::Item(int indice) const
{
    compruebaIndice(indice);
    return *m_factores[static_cast<std::size_t>(indice - 1)].factor;
}

clsFactorPrimo &ColFactores::Item(const QString &clave) const
{
    const auto lugar = halla(clave);
    if (lugar == m_factores.end())
        throw ErrorEjecucion(ErrorEjecucion::ArgumentoNoValido, clave);
    return *lugar->factor;
}

void ColFactores::Remove(int indice)
{
    compruebaIndice(indice);
    m_factores.erase(m_factores.begin() + (indice - 1));
}

void ColFactores::Remove(const QString &clave)
{
    const auto lugar = halla(clave);
    if (lugar == m_factores.end())
        throw ErrorEjecucion(ErrorEjecucion::ArgumentoNoValido, clave);
    m_factores.erase(lugar);
}

QString ColFactores::clave(Moneda primo)
{
    return primo.texto() + u'P';
}

ColFactores::Entradas::const_iterator ColFactores::halla(const QString &clave) const
{
    return std::ranges::find(m_factores, clave, &Entrada::clave);
}

void ColFactores::compruebaIndice(int indice) const
{
    if (indice < 1 || indice > Count())
        throw ErrorEjecucion(ErrorEjecucion::IndiceFueraDeRango);
}
