// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

/// The kinds of the lesson on units that ask for the structure of Z_n, and those of linear
/// congruences.
QList<TipoDeEjercicio> ejerciciosDelAnillo();
