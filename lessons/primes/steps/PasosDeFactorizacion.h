// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/primes/TablaDeFactores.h"
#include "shell/core/steps/Pasos.h"

/// How a number fell apart, a factor split off a step, with the method and the time and the tree as
/// far as it has grown; then the product of all, but while the run goes on. None where nothing was
/// split.
Pasos pasosDeFactorizacion(const TablaDeFactores &tabla, bool enMarcha = false);

/// What a run has found so far, in a line: the divisor reached and the factors.
QString fraseDelAvance(const RastroDeDivision &rastro);
