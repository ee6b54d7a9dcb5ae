// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/fibonacci/Zeckendorf.h"
#include "shell/core/steps/Pasos.h"

/// Why the largest Fibonacci number that fits never has a neighbour for the next one, summand by
/// summand; then the sum. `sumandos`: the whole representation of a number.
Pasos pasosDeZeckendorf(const QList<PasoZeckendorf> &sumandos);
