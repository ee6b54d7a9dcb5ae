// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// The stop line that runs share: it stops all that have begun so far. A run that begins later is
/// not stopped by an earlier word, so that nothing ever has to be allowed again.
class Parada
{
public:
    /// The number of a run that begins now; they count from 1.
    std::uint64_t empieza() { return ++m_empezadas; }

    void detener() { m_detenidas = m_empezadas; }
    bool detenida(std::uint64_t corrida) const { return corrida <= m_detenidas; }

    /// Whether a later run has begun.
    bool superada(std::uint64_t corrida) const { return corrida < m_empezadas; }

private:
    std::uint64_t m_empezadas = 0;
    std::uint64_t m_detenidas = 0;
};
