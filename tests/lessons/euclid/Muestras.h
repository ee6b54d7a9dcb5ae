// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/Moneda.h"

#include <QRandomGenerator>
#include <QTest>

/// Exact arithmetic to hold the lesson's against: no product of two of its numbers passes 128 bits.
__extension__ using Exacto = __int128;

inline Exacto exacto(Moneda valor)
{
    return valor.entero();
}

/// Whole numbers of every size up to the largest, the same in every run.
class Muestras
{
public:
    explicit Muestras(quint32 semilla) : m_azar(semilla) {}

    /// From 0 to `mayor`; each size in bits is as likely as any other.
    std::int64_t natural(std::int64_t mayor = Moneda::MaximoEntero)
    {
        const int bits = m_azar.bounded(51);
        const auto valor = static_cast<std::int64_t>(m_azar.generate64() >> (63 - bits) >> 1);
        return valor % (mayor + 1);
    }

    /// Among the thousand largest.
    std::int64_t extremo(std::int64_t mayor = Moneda::MaximoEntero)
    {
        return mayor - m_azar.bounded(1000);
    }

    bool moneda() { return m_azar.bounded(2) == 1; }

private:
    QRandomGenerator m_azar;
};
