// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"

/// Whether an odd composite is a Carmichael number, which deceives Fermat's test to every base that
/// is coprime to it, and how the strong test unmasks it: no factoring is needed, for the roots of 1
/// that it meets split the number (Alwin Korselt, "Problème chinois", 1899, for the criterion). For
/// another number, a base by which Fermat's test tells that it is none. `n` has digits only, at
/// most MasBitsDePasos bits.
Pasos pasosDeCarmichael(const QString &n);
