// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/Cuestion.h"

/// Draws a number and asks for its representation of Zeckendorf.
Cuestion sorteaZeckendorf();
/// The same for a given number, 1 to 100 000.
Cuestion cuestionZeckendorf(int n);

/// Draws two indices with a common divisor and asks for the gcd of their Fibonacci numbers.
Cuestion sorteaMcd();
/// The same for given indices, both from 3 on.
Cuestion cuestionMcd(int m, int n);
