// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

/// The value of a recurrence at a place: of first order, of second order with whole roots, and of
/// an algorithm that divides.
Ejercicio valorDeRecurrencia(int nivel, Sorteo &sorteo);
