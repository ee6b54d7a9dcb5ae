// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

/// The kinds of the lesson on simultaneous congruences.
QList<TipoDeEjercicio> ejerciciosDeCongruencias();
