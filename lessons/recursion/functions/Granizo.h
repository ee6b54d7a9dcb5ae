#pragma once

#include "lessons/recursion/functions/HistoriaGranizo.h"
#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <memory>

/// How a hailstone run ended.
enum class FinDeGranizo {
    EnUno,
    Detenido,
    SinEntero,       ///< the start is no whole number in digits that the big-number service reads
    DemasiadasCifras ///< the numbers grew beyond the big-number service
};

/// Runs the hailstone sequence from a big number until it reaches 1; the ticket stops it. The start
/// is not looked at: 1 goes through 4 and 2 before it ends. No number of steps is too many.
Tarea<FinDeGranizo> correGranizo(QString inicio, std::shared_ptr<HistoriaGranizo> historia,
                                 Billete billete);
