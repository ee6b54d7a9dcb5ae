// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCursor>
#include <QIcon>
#include <QPixmap>
#include <QString>

/// The program's pictures, by resource name ("SEMAFOROVERDE", "PRIMOS", …). Vector pictures: sharp
/// at every size and scale. An unknown name gives an empty picture.
QIcon Icono(const QString &nombre);

/// A picture `lado` device-independent pixels high, for a screen of the given scale.
QPixmap Imagen(const QString &nombre, int alto, qreal escala);

/// The picture in an SVG file in its own size, for a screen of the given scale; in the colours of a
/// dark page when so asked (figuraOscura). Null when there is none.
QPixmap ImagenDeArchivo(const QString &ruta, qreal escala, bool oscura = false);

/// A mouse pointer, with its hot spot in device-independent pixels.
QCursor Cursor(const QString &nombre, QPoint puntoActivo);

/// The button pictures that all lessons share, loaded at start: next, and stop.
QIcon &ImgSiguiente();
QIcon &ImgStop();
