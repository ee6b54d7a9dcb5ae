// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/euclid/TablaEuclides.h"
#include "shell/core/steps/Pasos.h"

/// Why the last divisor is the greatest common divisor, division by division, with the rectangle
/// that the quotients cut into squares; then, in the standard algorithm, the remainder written with
/// the two numbers, line by line from below (back-substitution). None where nothing was divided.
Pasos pasosDeEuclides(const TablaEuclides &tabla);
