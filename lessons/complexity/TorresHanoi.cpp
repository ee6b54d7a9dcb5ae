// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/TorresHanoi.h"

TorresHanoi::TorresHanoi(int discos) : m_discos(discos)
{
    for (int disco = discos; disco >= 1; --disco)
        m_palos[0] << disco;
}

const QList<int> &TorresHanoi::palo(int indice) const
{
    return m_palos.at(static_cast<std::size_t>(indice));
}

int TorresHanoi::paloDe(int disco) const
{
    return m_palos[0].contains(disco) ? 0 : m_palos[1].contains(disco) ? 1 : 2;
}

int TorresHanoi::destino(int disco) const
{
    int destino = 2;
    for (int mayor = m_discos; mayor > disco; --mayor) {
        const int suyo = paloDe(mayor);
        if (suyo != destino)
            destino = NumPalos - suyo - destino;
    }
    return destino;
}

int TorresHanoi::faltan() const
{
    int faltan = 0;
    for (int disco = 1; disco <= m_discos; ++disco)
        faltan += paloDe(disco) == destino(disco) ? 0 : 1 << (disco - 1);
    return faltan;
}

std::optional<MovimientoHanoi> TorresHanoi::siguiente() const
{
    for (int disco = 1; disco <= m_discos; ++disco) {
        if (paloDe(disco) != destino(disco))
            return MovimientoHanoi{disco, paloDe(disco), destino(disco)};
    }
    return {};
}

ReparoHanoi TorresHanoi::reparo(int desde, int hasta) const
{
    if (palo(desde).isEmpty())
        return ReparoHanoi::PaloVacio;
    const bool sobreMenor = !palo(hasta).isEmpty() && palo(hasta).last() < palo(desde).last();
    return sobreMenor ? ReparoHanoi::DiscoMenor : ReparoHanoi::Ninguno;
}

void TorresHanoi::mueve(int desde, int hasta)
{
    if (desde == hasta || reparo(desde, hasta) != ReparoHanoi::Ninguno)
        return;
    m_movimientos << MovimientoHanoi{palo(desde).last(), desde, hasta};
    traslada(desde, hasta);
}

void TorresHanoi::avanza()
{
    if (const auto movimiento = siguiente())
        mueve(movimiento->desde, movimiento->hasta);
}

void TorresHanoi::retrocede()
{
    if (m_movimientos.isEmpty())
        return;
    const MovimientoHanoi ultimo = m_movimientos.takeLast();
    traslada(ultimo.hasta, ultimo.desde);
}

void TorresHanoi::traslada(int desde, int hasta)
{
    m_palos.at(static_cast<std::size_t>(hasta))
        << m_palos.at(static_cast<std::size_t>(desde)).takeLast();
}
