// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"
#include "shell/core/steps/TablaConHuecos.h"

/// Whether a step has a table of which at least one cell is a whole number.
bool sePuedePredecir(const Paso &paso);

/// The table of a step for the student to fill in. Cells that are no whole numbers are given; why a
/// cell holds what it holds is told by the step's rule or, without one, by its sentence.
TablaConHuecos huecosDePaso(const Paso &paso);
