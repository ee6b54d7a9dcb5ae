// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>

class QWidget;

/// Tells screen readers what a control is that Qt takes for any widget: a picture, a drawing, an
/// animation. To be called before anybody has asked for it, in the constructor.
void ponPapel(QWidget *control, QAccessible::Role papel);
