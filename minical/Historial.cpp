// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/Historial.h"

void Historial::anota(PasoDeEdicion paso)
{
    if (paso.isEmpty())
        return;
    m_pasos.resize(m_hechos);
    if (m_guardado > m_hechos)
        m_guardado.reset();
    m_pasos.push_back(std::move(paso));
    if (m_pasos.size() <= MaximoDePasos) {
        ++m_hechos;
        return;
    }
    m_pasos.pop_front();
    if (m_guardado == 0U)
        m_guardado.reset();
    else if (m_guardado)
        --*m_guardado;
}

const PasoDeEdicion &Historial::deshace()
{
    return m_pasos[--m_hechos];
}

const PasoDeEdicion &Historial::rehace()
{
    return m_pasos[m_hechos++];
}
