// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

/// The formula of a cell that gives a column of values from the cell beside each.
Ejercicio formulaDeColumna(int nivel, Sorteo &sorteo);
