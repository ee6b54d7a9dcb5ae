#include "shell/core/Corrida.h"

#include <QCoreApplication>
#include <algorithm>

void Corrida::sirveEventos()
{
    QCoreApplication::processEvents();
}

void Corrida::cederYa()
{
    if (m_cesion)
        m_cesion();
    m_ultimaCesion = m_ultimaLectura = Reloj::now();
    m_pasosHastaReloj = m_pasosEntreLecturas;
}

void Corrida::miraElReloj()
{
    // Steps may take nanoseconds or milliseconds, and change as numbers grow: the distance between
    // two readings follows them. 64 steps already make a reading cost less than a nanosecond a
    // step, and more would be too many when steps suddenly grow long.
    constexpr int maximoDePasos = 64;
    const auto ahora = Reloj::now();
    const auto transcurrido = ahora - m_ultimaLectura;
    if (transcurrido > Plazo / 4)
        m_pasosEntreLecturas = std::max(1, m_pasosEntreLecturas / 4);
    else if (transcurrido < Plazo / 8)
        m_pasosEntreLecturas = std::min(maximoDePasos, 2 * m_pasosEntreLecturas);
    m_ultimaLectura = ahora;
    m_pasosHastaReloj = m_pasosEntreLecturas;
    if (ahora - m_ultimaCesion >= Plazo)
        cederYa();
}

Corrida::Tramo::~Tramo()
{
    if (--m_corrida.m_tramos == 0 && m_corrida.m_alTerminar)
        m_corrida.m_alTerminar();
}
