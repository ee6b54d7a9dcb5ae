// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QImage>

/// Where the pictures come from: drawn by Qt SVG, or, where that is missing, out of the bitmaps
/// that were made of the same drawings while building.
namespace Dibujante {

/// One of the program's pictures (Imagenes.h) as an icon.
QIcon icono(const QString &nombre);

/// One of the program's pictures, so many device-independent pixels high. Null when there is none.
QImage imagen(const QString &nombre, int alto, qreal escala);

/// The drawing in an SVG file in its own size. Null when there is none.
QImage figura(const QString &ruta, qreal escala, bool oscura);

} // namespace Dibujante
