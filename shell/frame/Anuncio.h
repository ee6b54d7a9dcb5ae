// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

/// Tells screen readers that what a control says has changed, where the keyboard is elsewhere: a
/// verdict, a result, the current step.
void anuncia(QWidget *control);
