// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/TorresHanoi.h"

TorresHanoi::TorresHanoi(int discos) : m_discos(discos)
{
    for (int disco = discos; disco >= 1; --disco)
        m_palos[0] << disco;
    m_movimientos.reserve((1 << discos) - 1);
    traslada(discos, 0, 2);
}

const QList<int> &TorresHanoi::palo(int indice) const
{
    return m_palos.at(static_cast<std::size_t>(indice));
}

/// Writes down the moves that take so many discs from a pole to another.
void TorresHanoi::traslada(int discos, int desde, int hasta)
{
    if (discos == 0)
        return;
    const int otro = NumPalos - desde - hasta;
    traslada(discos - 1, desde, otro);
    m_movimientos << MovimientoHanoi{discos, desde, hasta};
    traslada(discos - 1, otro, hasta);
}

void TorresHanoi::avanza()
{
    if (terminado())
        return;
    const MovimientoHanoi &siguiente = m_movimientos.at(m_hechos);
    mueve(siguiente.desde, siguiente.hasta);
    ++m_hechos;
}

void TorresHanoi::retrocede()
{
    if (m_hechos == 0)
        return;
    --m_hechos;
    const MovimientoHanoi &ultimo = m_movimientos.at(m_hechos);
    mueve(ultimo.hasta, ultimo.desde);
}

void TorresHanoi::mueve(int desde, int hasta)
{
    m_palos.at(static_cast<std::size_t>(hasta))
        << m_palos.at(static_cast<std::size_t>(desde)).takeLast();
}
