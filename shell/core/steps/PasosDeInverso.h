// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"

/// How Euclid's algorithm finds the inverse of a modulo n, division by division: each remainder is
/// congruent to its coefficient times a, so that the coefficient of 1 is the inverse; or why there
/// is none. For numbers of any size, a whole, n ≥ 1, in decimal digits; computed when first looked
/// at.
Pasos pasosDeInverso(const QString &a, const QString &n);
