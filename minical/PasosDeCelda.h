// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/Celda.h"
#include "shell/core/steps/Pasos.h"

class HojaDeCalculo;

/// How a cell comes to its result: its names replaced by their values, as they are now, and then
/// operation by operation, and what it shows where that is older. None for an empty cell; for one
/// whose expression has no value now, the reason. Computes the expression, in about as long as the
/// sheet took.
Pasos pasosDeCelda(const HojaDeCalculo &hoja, Celda celda);
