// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

/// What a recursive definition computes, or whether it defines a function at all.
Ejercicio definicionRecursiva(int nivel, Sorteo &sorteo);
