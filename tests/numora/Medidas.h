// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QWidget;

/// What cannot be read or reached in a window as it stands: texts wider than their widget, captions
/// that are cut, controls smaller than they need, on top of each other, outside of what holds them
/// or without any size. A line each, by name; what scrolls into sight is no fault.
QStringList faltasDeMedida(const QWidget &ventana);
