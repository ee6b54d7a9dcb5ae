// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/run/Cesiones.h"

#include <algorithm>

Cesiones::Cesiones()
{
    m_turno.setSingleShot(true);
    QObject::connect(&m_turno, &QTimer::timeout, &m_turno, [this] { sigue(); });
}

void Cesiones::espera(std::coroutine_handle<> quien)
{
    m_esperan.push_back(quien);
    m_turno.start(0);
}

void Cesiones::olvida(std::coroutine_handle<> quien)
{
    std::erase(m_esperan, quien);
}

void Cesiones::sigue()
{
    if (m_esperan.empty())
        return;
    const auto quien = m_esperan.front();
    m_esperan.pop_front();
    if (!m_esperan.empty())
        m_turno.start(0);
    // The last thing done here: the run may take its owner's queue with it.
    quien.resume();
}
