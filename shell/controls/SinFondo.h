// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

class QColor;

/// A frame of an animation without the ground on which it was drawn, so that it can stand on a dark
/// one: what has the colour `fondo`, nearly, and reaches the edge becomes transparent, and the soft
/// border of the drawing translucent. What is enclosed by the drawing stays. The ground is taken
/// out of the border as in A. R. Smith and J. F. Blinn, "Blue Screen Matting", 1996.
QImage sinFondo(const QImage &fotograma, const QColor &fondo);
