// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

/// Writes a text into a control as a user would: a field, a number, a choice of a list; "1" or "0"
/// for what is marked; in a grid "row,column:text", or "row,column" to make that cell the current
/// one, both counted from 0. False for any other control, for one that cannot be written, and for a
/// text that it does not take.
bool rellena(QWidget &control, const QString &valor);

/// Whether `rellena` is writing into a control just now. A window that takes a value over at each
/// change, with consequences, waits then until the user does so.
bool seRellena(const QWidget *control);
