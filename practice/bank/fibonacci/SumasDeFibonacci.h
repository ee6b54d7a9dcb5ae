// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

/// What a sum of Fibonacci numbers comes to: the first, every second one, squares or a stretch.
Ejercicio sumaDeFibonacci(int nivel, Sorteo &sorteo);
