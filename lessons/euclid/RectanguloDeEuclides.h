// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/euclid/TablaEuclides.h"
#include "shell/core/steps/Lamina.h"

/// The rectangle of the two numbers, cut into squares by the divisions up to `hasta`, counted from
/// 0: each quotient tells how many squares of its divisor's side fit into what is left. With a
/// negative remainder the last square stands out, and the strip that is too much is cut next. Empty
/// where a number is not positive.
Lamina rectanguloDeEuclides(const TablaEuclides &tabla, qsizetype hasta);
