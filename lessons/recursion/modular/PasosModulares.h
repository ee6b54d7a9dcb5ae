// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/modular/SucesionModular.h"
#include "shell/core/steps/Pasos.h"

/// Why a sequence repeats itself: the numbers reduced, each value from the two before it, and the
/// first pair that comes back, or that none of those looked at does. Up to 60 states are drawn as
/// they come, a tail and a circle. None with m = 0.
Pasos pasosDeSucesion(const DefinicionRecurrente &definicion, const SucesionModular &sucesion);
