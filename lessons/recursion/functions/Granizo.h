#pragma once

#include "lessons/recursion/functions/HistoriaGranizo.h"
#include "shell/core/Corrida.h"

/// How a hailstone run ended.
enum class FinDeGranizo {
    EnUno,
    Detenido,
    Error ///< the start is no whole number, or the numbers grew beyond the big-number service
};

/// Runs the hailstone sequence from a big number until it reaches 1, one yield a step; the flag
/// stops it. The start is not looked at: 1 goes through 4 and 2 before it ends. No number of steps
/// is too many.
FinDeGranizo correGranizo(const QString &inicio, HistoriaGranizo &historia, Corrida &corrida);
