// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/Cuestion.h"

/// Draws n and asks for the number of calls of the recursive F(n).
Cuestion sorteaLlamadas();
/// The same for a given n, 3 to 40.
Cuestion cuestionLlamadas(int n);

/// Draws a number of discs and one of them and asks how often it moves.
Cuestion sorteaHanoi();
/// The same for given ones, 1 ≤ disco ≤ discos ≤ 60; disc 1 is the smallest.
Cuestion cuestionHanoi(int discos, int disco);
