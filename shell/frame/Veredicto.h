// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QLabel;
class QWidget;

/// Writes a verdict into a label, told by sign and colour as well as by its words.
void muestraVeredicto(QLabel *rotulo, bool bien, const QString &texto);

/// Writes what is neither right nor wrong where a verdict may have stood.
void muestraNeutro(QLabel *rotulo, const QString &texto);

/// Refuses what a field, of one line or of several, holds: says why in a label, as above, and goes
/// back to the field, whose text is chosen.
void rechaza(QWidget *campo, QLabel *rotulo, const QString &motivo);
