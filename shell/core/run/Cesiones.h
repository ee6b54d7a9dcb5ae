// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Corrutina.h"
#include <QTimer>
#include <deque>

/// The runs of one owner that have given up the thread, and wait for the event loop to go on with
/// them: one each time it comes round, after what the user and the desktop have sent.
class Cesiones
{
public:
    Cesiones();

    void espera(std::coroutine_handle<> quien);
    void olvida(std::coroutine_handle<> quien);

private:
    void sigue();

    // A timer that is due at once, rather than a queued call: queued calls that queue the next one
    // are all done before the loop looks at mouse and keyboard.
    QTimer m_turno;
    std::deque<std::coroutine_handle<>> m_esperan;
};
