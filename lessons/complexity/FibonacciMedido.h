#pragma once

#include "shell/core/Corrida.h"

#include <QtGlobal>

/// The three ways of computing F(n) that are timed against each other.
enum class FormaDeCalculo { Recursiva, ConMemoria, Iterativa };

/// What a computation gave and what it cost. `pasos` are calls, or, in the iteration, additions.
struct Medida
{
    qint64 valor = 0;
    qint64 pasos = 0;
    double nanosegundos = 0; ///< of one computation, at the fastest of several tries
};

/// F(n), F(0) = 0, F(1) = 1, for n up to 92, the last that fits 64 bits. Yields in the recursive
/// form, once a call; the time of the yields does not count. When the run is stopped meanwhile the
/// measure is worthless.
Medida mideFibonacci(FormaDeCalculo forma, int n, Corrida &corrida);
