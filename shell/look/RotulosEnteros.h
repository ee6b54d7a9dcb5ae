// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QLabel;

/// Keeps a label that wraps as tall as its text is at the width it has. Layouts ask for that height
/// only where nothing between the label and the window hides the question, as a splitter and a
/// stack of panels do; what is too low there cuts lines in half.
void mantieneEntero(QLabel *rotulo);
