// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>

/// How long a computation takes, told from several turns of it. One computation may be shorter than
/// a tick of the clock, so that as many as fill some 200 µs are timed together; the fastest of the
/// turns counts, because what else the machine does only delays.
class MejorDeVarias
{
public:
    /// How many computations the next turn is to hold.
    std::int32_t veces() const { return m_veces; }

    /// Whether there have been turns enough: three at least and for 10 ms, or for 100 ms.
    bool basta() const
    {
        using namespace std::chrono_literals;
        return m_total >= 100ms || (m_turnos >= 3 && m_total >= 10ms);
    }

    /// How long a turn of `veces()` computations has taken.
    void anota(std::chrono::nanoseconds turno)
    {
        using namespace std::chrono_literals;
        if (m_turnos == 0 && turno < 200us) {
            m_veces *= 2;
            return;
        }
        m_mejor = m_turnos == 0 ? turno : std::min(m_mejor, turno);
        m_total += turno;
        ++m_turnos;
    }

    /// The time of one computation at the fastest turn; 0 before the first that counts.
    double nanosegundos() const
    {
        return static_cast<double>(m_mejor.count()) / static_cast<double>(m_veces);
    }

private:
    std::chrono::nanoseconds m_mejor{};
    std::chrono::nanoseconds m_total{};
    int m_turnos = 0;
    std::int32_t m_veces = 1;
};
