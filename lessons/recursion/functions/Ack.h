// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/functions/MemoriaAck.h"
#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <QString>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

/// Ackermann's function of two arguments (Rózsa Péter, 1935; Raphael M. Robinson, 1948), with
/// memory and a cut-off. The calls that wait for others stand on a stack of our own, so that no
/// cut-off exhausts the machine's.
class Ack
{
public:
    struct Llamada
    {
        std::int32_t m = 0;
        std::int32_t n = 0;
    };

    Ack(std::shared_ptr<MemoriaAck> memoria, std::int32_t corte, Billete billete)
        : m_memoria(std::move(memoria)), m_billete(std::move(billete)), m_corte(corte)
    {
    }

    /// Ack(m, n), one step a call; 0 when it was stopped, by the ticket or by the cut-off, and then
    /// every call that was waiting has written a 0 too. A call makes room for itself in the memory
    /// before the cut-off looks at its arguments. Throws
    /// ArgumentoNoValido for a negative argument, Desbordamiento when the memory has no room.
    Tarea<std::int32_t> calcula(std::int32_t m, std::int32_t n);

    /// An argument exceeded the cut-off, which stopped all runs of the stop line.
    bool rendido() const { return m_rendido; }

    /// The call that is being evaluated.
    const Llamada &actual() const { return m_actual; }

    /// How many calls there have been, those answered from memory included.
    std::int64_t numLlamadas() const { return m_numLlamadas; }

private:
    /// A call that waits. First, with both arguments positive, it waits for Ack(m, n - 1), and
    /// then for the value that is its own.
    struct Pendiente
    {
        Llamada llamada;
        bool esperaSuValor;
    };

    std::optional<std::int32_t> avanza(Llamada &llamada);
    std::int32_t entra(Llamada llamada);
    std::optional<std::int32_t> devuelve(std::int32_t valor);
    void abandona();

    std::shared_ptr<MemoriaAck> m_memoria;
    Billete m_billete;
    std::int32_t m_corte;
    std::vector<Pendiente> m_pila;
    Llamada m_actual;
    std::int64_t m_numLlamadas = 0;
    bool m_rendido = false;
};

/// A call as it is written: "Ack(2, 3)".
QString textoDeLlamada(Ack::Llamada llamada);
/// A call and its value: "Ack(2, 3) = 9"; of one that was given up, with the value 0, that it is
/// unfinished.
QString textoDeValor(Ack::Llamada llamada, std::int32_t valor);

/// What a field of the tab stands for: a plain number, no expression, rounded to four decimals and
/// then half to even. Throws TipoNoCoincide for a text that is no number and Desbordamiento beyond
/// 32 bits, both with `nombre` in their detail.
std::int32_t enteroDeTexto(const QString &texto, const QString &nombre);
