// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/Celda.h"

#include <QString>

class HojaDeCalculo;

/// Why a cell shows "Error", in one sentence for the student: a name that has no value, a bracket
/// too few, the sign that is not understood, the division by zero. It goes by the values that cells
/// have now, and takes about a tenth of a second at most, because it is asked for whenever the
/// pointer rests on a cell.
QString motivoDeError(const HojaDeCalculo &hoja, Celda celda);

/// The same for a cell that shows what it gave with other values: why it gives nothing now.
QString motivoSinValor(const HojaDeCalculo &hoja, Celda celda);

/// What does not show in a cell itself: why it is an error, how many digits its value has. Empty
/// where there is nothing to say.
QString explicacionDeCelda(const HojaDeCalculo &hoja, Celda celda);
