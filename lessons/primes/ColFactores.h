// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/Moneda.h"

#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

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

/// The prime factors of a number in the order in which they were found, each under a key: the
/// decimal text of the prime followed by "P". A number of machine size has so few of them that a
/// walk finds a key at once.
class ColFactores
{
public:
    /// One more of this prime: a factor that is there already gets its exponent increased by 1,
    /// whatever exponent is given. Throws Desbordamiento beyond 32 bits.
    clsFactorPrimo &Add(Moneda primo, std::int32_t exponente);

    /// The factor at a position, counted from 1. Throws IndiceFueraDeRango.
    clsFactorPrimo &Item(int indice) const;
    /// The factor under a key. Throws ArgumentoNoValido when there is none.
    clsFactorPrimo &Item(const QString &clave) const;

    /// The number of different primes.
    int Count() const { return static_cast<int>(m_factores.size()); }

    /// Throw what Item throws.
    void Remove(int indice);
    void Remove(const QString &clave);

    static QString clave(Moneda primo);

private:
    struct Entrada
    {
        QString clave;
        std::unique_ptr<clsFactorPrimo> factor;
    };
    using Entradas = std::vector<Entrada>;
    Entradas::const_iterator halla(const QString &clave) const;
    void compruebaIndice(int indice) const;

    Entradas m_factores;

public:
    /// Walks over the factors in the order of their insertion.
    class Enumerador
    {
    public:
        explicit Enumerador(Entradas::const_iterator lugar) : m_lugar(lugar) {}
        clsFactorPrimo &operator*() const { return *m_lugar->factor; }
        Enumerador &operator++()
        {
            ++m_lugar;
            return *this;
        }
        bool operator==(const Enumerador &otro) const = default;

    private:
        Entradas::const_iterator m_lugar;
    };
    Enumerador begin() const { return Enumerador(m_factores.begin()); }
    Enumerador end() const { return Enumerador(m_factores.end()); }
};
