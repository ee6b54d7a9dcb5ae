// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Tareas.h"

#include <QTest>
#include <QTimer>
#include <chrono>
#include <optional>

template <typename Fin>
Tarea<> guarda(Tarea<Fin> corrida, std::optional<Fin> &fin)
{
    fin = co_await corrida;
}

/// How a run ends that is stopped so long after its beginning, at 0 in its first yield. `empieza`
/// makes it for its ticket.
template <typename Empieza>
auto detenida(std::chrono::milliseconds tras, Empieza empieza)
{
    Tareas tareas([](const std::exception_ptr &) {});
    using Fin = decltype(empieza(tareas.billete()).mango().promise().resultado());
    std::optional<Fin> fin;
    tareas.lanza(guarda(empieza(tareas.billete()), fin));
    QTimer parada;
    parada.callOnTimeout([&] { tareas.detener(); });
    parada.start(tras);
    static_cast<void>(QTest::qWaitFor([&] { return tareas.vacias(); }));
    return fin;
}
