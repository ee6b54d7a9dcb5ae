// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

/// The kinds of the spreadsheet.
QList<TipoDeEjercicio> ejerciciosDeMiniCal();
