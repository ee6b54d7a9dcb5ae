// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/Moneda.h"
#include "shell/core/steps/Pasos.h"

/// Why a·x + b·y = c has the solutions x, y ≥ 0 that are listed: greatest common divisor,
/// divisibility, Bezout's identity, a particular solution, the general one, the bounds of k, and
/// the points on the line. An equation without whole solutions is told apart from one whose
/// solutions all have a negative number. None for numbers that the solver takes no notice of.
Pasos pasosDeEcuacion(Moneda a, Moneda b, Moneda c);
