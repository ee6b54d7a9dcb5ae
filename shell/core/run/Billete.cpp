// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/run/Billete.h"

#include "shell/core/run/Cesiones.h"

#include <algorithm>

Billete::Billete() : m_ritmo(std::make_shared<Ritmo>()) {}

Billete::Billete(std::shared_ptr<Parada> parada, std::shared_ptr<Cesiones> cesiones)
    : m_parada(std::move(parada)),
      m_cesiones(std::move(cesiones)),
      m_ritmo(std::make_shared<Ritmo>()),
      m_numero(m_parada->empieza())
{
}

void Billete::detener() const
{
    if (m_parada)
        m_parada->detener();
}

bool Billete::vencePlazo() const
{
    // Steps may take nanoseconds or milliseconds, and change as numbers grow: the distance between
    // two readings follows them. 64 steps already make a reading cost less than a nanosecond a
    // step, and more would be too many when steps suddenly grow long.
    constexpr int maximoDePasos = 64;
    Ritmo &r = *m_ritmo;
    const auto ahora = Reloj::now();
    const auto transcurrido = ahora - r.ultimaLectura;
    if (transcurrido > Plazo / 4)
        r.pasosEntreLecturas = std::max(1, r.pasosEntreLecturas / 4);
    else if (transcurrido < Plazo / 8)
        r.pasosEntreLecturas = std::min(maximoDePasos, 2 * r.pasosEntreLecturas);
    r.ultimaLectura = ahora;
    r.pasosHastaReloj = r.pasosEntreLecturas;
    return ahora - r.ultimaCesion >= Plazo;
}

bool Billete::Cesion::await_suspend(std::coroutine_handle<> quien)
{
    if (!m_billete.m_cesiones)
        return false;
    m_quien = quien;
    m_billete.m_ritmo->ultimaCesion = Reloj::now();
    m_billete.m_cesiones->espera(quien);
    return true;
}

void Billete::Cesion::await_resume()
{
    Ritmo &r = *m_billete.m_ritmo;
    if (!m_quien)
        return;
    m_quien = {};
    const auto ahora = Reloj::now();
    r.cedido += ahora - r.ultimaCesion;
    r.ultimaCesion = r.ultimaLectura = ahora;
    r.pasosHastaReloj = r.pasosEntreLecturas;
}

Billete::Cesion::~Cesion()
{
    // The run dies while it is suspended: nobody may go on with what is gone.
    if (m_quien)
        m_billete.m_cesiones->olvida(m_quien);
}
