// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

/// Puts the translation of every text that the form of a window holds in its place: captions,
/// labels, tooltips, placeholders, tabs, lists, menus, accessible names. Called once, after the
/// form is set up and before texts are made at run time. Fields that the user fills are left alone.
void traduceVentana(QWidget *ventana);
