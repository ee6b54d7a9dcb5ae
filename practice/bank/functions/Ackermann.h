// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

/// A value of Ackermann's function, or of two of them one inside the other.
Ejercicio valorDeAckermann(int nivel, Sorteo &sorteo);
