// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/functions/Ack.h"

#include <vector>

/// The course of Ackermann's function with its memory, event by event, for the first of them: which
/// call is made, from where it is answered, how its caller goes on.
class PilaDeAck
{
public:
    /// Events kept; a run that has more is left there.
    static constexpr std::size_t MaximoDeSucesos = 3000;

    enum Clase {
        Espera,     ///< a call that has to wait for another
        Base,       ///< Ack(0, n), answered at once
        Recordada,  ///< answered from the memory
        Sigue,      ///< the inner call of the one on top is answered: it goes on with the value
        Devuelve,   ///< the one on top has its value, and leaves
        Abandonada, ///< an argument is beyond the cut-off
        Cortada     ///< there are more events than are kept
    };
    struct Suceso
    {
        Clase clase = Espera;
        Ack::Llamada llamada;
        std::int32_t valor = 0; ///< of the call; in Sigue, of the inner one
    };
    /// A call that waits; with the value of the inner call once that is known, else 0.
    struct Pendiente
    {
        Ack::Llamada llamada;
        std::int32_t interior = 0;
    };

    /// Both arguments from 0 on.
    PilaDeAck(Ack::Llamada llamada, std::int32_t corte);

    const std::vector<Suceso> &sucesos() const { return m_sucesos; }

    /// The calls that wait after an event, the first one first.
    std::vector<Pendiente> pila(std::size_t suceso) const;

private:
    std::vector<Suceso> m_sucesos;
};
