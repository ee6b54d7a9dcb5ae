// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

/// The kinds that use the Chinese remainder theorem: powers by parts, and word problems.
QList<TipoDeEjercicio> ejerciciosDeProblemas();
