// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QLabel;
class QLineEdit;

/// Keeps a label that wraps as tall as its text is at the width it has. Layouts ask for that height
/// only where nothing between the label and the window hides the question, as a splitter and a
/// stack of panels do; what is too low there cuts lines in half.
void mantieneEntero(QLabel *rotulo);

/// Keeps a field at least as wide as its hint, up to a line's third, or a number of some digits.
void mantieneEntero(QLineEdit *campo);
