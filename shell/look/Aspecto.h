// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPalette>

class QLabel;

/// The one look of the program: style, palette, type size, and the colours that mean something.
namespace Aspecto {

enum class Tema { Sistema, Claro, Oscuro };

/// Applies style and palette. `Sistema` is what the desktop asked for at the first call, by the
/// palette that it gave or by its settings.
void aplica(Tema tema);
Tema tema();
bool esOscuro();

/// The type size in points: the desktop's plus `pasos`, between 6 and 32.
void ponPasosDeLetra(int pasos);
int pasosDeLetra();

/// Whether animations that nobody has asked for stay still pictures: the logo, verdicts, the wheels
/// of a run. Not so at first.
void ponMovimientoReducido(bool reducido);
bool movimientoReducido();

/// Margin around the contents of a panel, and space between groups, in pixels at 100 %.
inline constexpr int Margen = 12;
inline constexpr int Espacio = 8;

/// Makes a label a heading, `factor` times as large as ordinary text whatever the type size.
void destaca(QLabel *rotulo, qreal factor = 1.3);

QColor acento();
QColor exito();
QColor error();
QColor atenuado();
/// The ground on which the animations are drawn.
QColor lienzo();

} // namespace Aspecto
