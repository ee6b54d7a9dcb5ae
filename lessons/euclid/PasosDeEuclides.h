// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/euclid/TablaEuclides.h"
#include "shell/core/steps/Pasos.h"

#include <QList>

/// Why the last divisor is the greatest common divisor, division by division, with the rectangle
/// that the quotients cut into squares; then the greatest common divisor written with the two
/// numbers, line by line from below (back-substitution). None where nothing was divided.
Pasos pasosDeEuclides(const TablaEuclides &tabla);

/// The greatest common divisor as x·dividend + y·divisor of a division.
struct Combinacion
{
    std::int64_t x, y;
};

/// Back-substitution: the combination of each division up to that whose remainder is the greatest
/// common divisor, in the table's order; empty where that is a number that was given. Signs of
/// negative remainders are minded, so that each holds with reduced remainders, too.
QList<Combinacion> sustitucionHaciaAtras(const TablaEuclides &tabla);
