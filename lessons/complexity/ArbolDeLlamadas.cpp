// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/ArbolDeLlamadas.h"

#include <algorithm>

ArbolDeLlamadas::ArbolDeLlamadas(int n, bool conMemoria)
    : m_conMemoria(conMemoria), m_vistas(n + 1, false)
{
    agrega(n, -1, 0);
}

/// Adds a call with all that come of it; gives its index.
int ArbolDeLlamadas::agrega(int n, int padre, int fila)
{
    const auto indice = static_cast<int>(m_llamadas.size());
    const bool repetida = m_vistas.at(n);
    m_vistas[n] = true;
    m_filas = std::max(m_filas, fila + 1);
    m_llamadas << Llamada{n, padre, QPointF(0, fila), repetida};
    qreal x = 0;
    if (n < 2 || (m_conMemoria && repetida)) {
        x = m_columnas++;
    } else {
        const int primera = agrega(n - 1, indice, fila + 1);
        const int segunda = agrega(n - 2, indice, fila + 1);
        x = (m_llamadas.at(primera).sitio.x() + m_llamadas.at(segunda).sitio.x()) / 2;
    }
    m_llamadas[indice].sitio.setX(x);
    return indice;
}

int ArbolDeLlamadas::repetidas() const
{
    return static_cast<int>(std::count_if(m_llamadas.begin(), m_llamadas.end(),
                                          [](const Llamada &l) { return l.repetida; }));
}
