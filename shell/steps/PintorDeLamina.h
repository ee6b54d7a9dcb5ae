// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Lamina.h"
#include "shell/steps/TintasDePaso.h"

class QPainter;

/// Paints a drawing as large as it fits into the rectangle, in its proportions and in its middle.
void pintaLamina(QPainter &pintor, const Lamina &lamina, const QRectF &hueco,
                 const TintasDePaso &tintas);
