// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <QtGlobal>
#include <optional>

/// What a computation gave and what it cost. `pasos` are calls, or, in the iteration, additions.
struct Medida
{
    qint64 valor = 0;
    qint64 pasos = 0;
    double nanosegundos = 0; ///< of one computation, at the fastest of several turns
};

/// F(n), F(0) = 0, F(1) = 1, in the three ways that are timed against each other.
struct MedidasDeFibonacci
{
    Medida recursiva;
    Medida conMemoria;
    Medida iterativa;
};

/// Times them for an n from 0 to 92, the last that fits 64 bits; nothing when the run was stopped.
/// The time of the yields does not count.
Tarea<std::optional<MedidasDeFibonacci>> mideFibonacci(int n, Billete billete);

/// The two that take no time worth a yield.
Medida mideConMemoria(int n);
Medida mideIterativa(int n);
