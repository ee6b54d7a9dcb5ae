// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <QtGlobal>
#include <chrono>
#include <optional>

/// F(n) = F(n-1) + F(n-2) as it stands, each call making two more, which two lessons time. A run
/// that yields can be watched and stopped: the calls for larger n are suspended between their two,
/// those for smaller n are made at one go.
class FibonacciRecursivo
{
public:
    struct Medida
    {
        qint64 valor = 0;
        qint64 llamadas = 0;
        double nanosegundos = 0; ///< of one computation at the fastest of several turns
    };

    /// F(n), n from 0 to 92, the last that fits 64 bits; nothing when the run was stopped. The time
    /// of the yields does not count. The object outlives the task.
    Tarea<std::optional<Medida>> mide(int n, Billete billete);

    /// The calls of the computation in work so far.
    qint64 llamadas() const { return m_llamadas; }

private:
    qint64 deUnTiron(int n, std::int32_t veces);
    Tarea<qint64> porPartes(int n, Billete billete);

    qint64 m_llamadas = 0;
    std::chrono::nanoseconds m_tiempo{}; ///< of the turn in work
};
