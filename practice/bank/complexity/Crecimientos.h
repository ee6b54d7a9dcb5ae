// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

/// How a function grows, chosen among the usual orders: a sum, an algorithm that divides, a
/// recurrence that goes down by one.
Ejercicio ordenDeCrecimiento(int nivel, Sorteo &sorteo);
