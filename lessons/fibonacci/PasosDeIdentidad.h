// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"

/// Why the identity of that row of the table (IdentidadesFibonacci.h) holds for m and n, from 1 to
/// MaximoDeIdentidades: the formula of the sum of indices and the sum of the first by counting
/// strips of squares and dominoes, drawn while they are few; the sum of squares by a rectangle;
/// Cassini's by a square and a rectangle; the greatest common divisor by Euclid on the indices.
Pasos pasosDeIdentidad(int fila, int m, int n);
