// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

/// The moves of the discs of Hanoi's towers.
Ejercicio movimientosDeHanoi(int nivel, Sorteo &sorteo);
