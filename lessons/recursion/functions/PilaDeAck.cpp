// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/PilaDeAck.h"

#include <QHash>
#include <utility>

namespace {

/// What happens next, from the calls that wait and the values known.
class Carrera
{
public:
    Carrera(Ack::Llamada llamada, std::int32_t corte) : m_llamada(llamada), m_corte(corte) {}

    bool acabada() const { return m_acabada; }

    PilaDeAck::Suceso suceso() { return m_valor > 0 ? recibe(std::exchange(m_valor, 0)) : llama(); }

private:
    PilaDeAck::Suceso llama()
    {
        const auto [m, n] = m_llamada;
        if (m > m_corte || n > m_corte) {
            m_acabada = true;
            return {PilaDeAck::Abandonada, m_llamada};
        }
        const std::int32_t conocido = m_memoria.value({m, n});
        if (m == 0 || conocido > 0) {
            const std::int32_t valor = m == 0 ? n + 1 : conocido;
            responde(valor);
            return {m == 0 ? PilaDeAck::Base : PilaDeAck::Recordada, {m, n}, valor};
        }
        m_pila.push_back({m_llamada, n == 0 ? 1 : 0});
        m_llamada = n == 0 ? Ack::Llamada{m - 1, 1} : Ack::Llamada{m, n - 1};
        return {PilaDeAck::Espera, {m, n}};
    }

    /// The call on top waits for this value.
    PilaDeAck::Suceso recibe(std::int32_t valor)
    {
        const auto [llamada, interior] = m_pila.back();
        if (interior == 0) {
            m_pila.back().interior = valor;
            m_llamada = {llamada.m - 1, valor};
            return {PilaDeAck::Sigue, llamada, valor};
        }
        m_pila.pop_back();
        m_memoria.insert({llamada.m, llamada.n}, valor);
        responde(valor);
        return {PilaDeAck::Devuelve, llamada, valor};
    }

    void responde(std::int32_t valor)
    {
        m_acabada = m_pila.empty();
        m_valor = valor;
    }

    Ack::Llamada m_llamada; ///< the one to be made next, while there is no value to hand over
    std::int32_t m_corte;
    std::vector<PilaDeAck::Pendiente> m_pila;
    QHash<std::pair<std::int32_t, std::int32_t>, std::int32_t> m_memoria;
    std::int32_t m_valor = 0; ///< to be handed over; 0, which no call gives, while there is none
    bool m_acabada = false;
};

} // namespace

PilaDeAck::PilaDeAck(Ack::Llamada llamada, std::int32_t corte)
{
    Carrera carrera(llamada, corte);
    while (!carrera.acabada() && m_sucesos.size() < MaximoDeSucesos)
        m_sucesos.push_back(carrera.suceso());
    if (!carrera.acabada())
        m_sucesos.push_back({Cortada, m_sucesos.back().llamada});
}

std::vector<PilaDeAck::Pendiente> PilaDeAck::pila(std::size_t suceso) const
{
    std::vector<Pendiente> pila;
    for (std::size_t i = 0; i <= suceso; ++i) {
        const Suceso &este = m_sucesos[i];
        if (este.clase == Espera)
            pila.push_back({este.llamada});
        else if (este.clase == Sigue)
            pila.back().interior = este.valor;
        else if (este.clase == Devuelve)
            pila.pop_back();
    }
    return pila;
}
