// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/euclid/TablaEuclides.h"
#include "shell/core/steps/TablaConHuecos.h"

/// The table of Euclid's algorithm for the student to fill in: all but the two numbers that were
/// given and the count of the divisions can be hidden.
TablaConHuecos huecosDeEuclides(const TablaEuclides &tabla);
