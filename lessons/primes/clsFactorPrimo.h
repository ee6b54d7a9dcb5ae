#pragma once

#include "bignum/gateway/Moneda.h"

#include <cstdint>
#include <memory>

class ColFactores;

/// A prime factor and its exponent.
class clsFactorPrimo
{
public:
    clsFactorPrimo(Moneda primo, std::int32_t exponente);
    ~clsFactorPrimo();
    clsFactorPrimo(const clsFactorPrimo &) = delete;
    clsFactorPrimo &operator=(const clsFactorPrimo &) = delete;

    Moneda Primo() const { return m_primo; }
    void ponPrimo(Moneda primo) { m_primo = primo; }

    std::int32_t exponente() const { return m_exponente; }
    void ponExponente(std::int32_t exponente) { m_exponente = exponente; }

    /// Factors that belong to this one, such as those of its exponent; empty until somebody fills
    /// them.
    ColFactores &Factores();
    void ponFactores(std::unique_ptr<ColFactores> factores);

private:
    Moneda m_primo;
    std::int32_t m_exponente;
    std::unique_ptr<ColFactores> m_factores;
};
