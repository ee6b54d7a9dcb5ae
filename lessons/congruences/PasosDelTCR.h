// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/congruences/SistemaCongruencias.h"
#include "shell/core/steps/Pasos.h"

/// Why the counting rows of a system, all of them valid, have the solution that they have. With
/// coprime moduli: their product M, the quotients Mi, the inverses, the summands, the sum reduced,
/// and each row checked. Else two rows at a time are joined into one, until they contradict each
/// other or one is left. Computed when first looked at. (Source: K. H. Rosen, Elementary Number
/// Theory and Its Applications, 2011, section 4.3.)
Pasos pasosDelTCR(const SistemaCongruencias &sistema);
