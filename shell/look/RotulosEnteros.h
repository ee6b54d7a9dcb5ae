// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QComboBox;
class QLabel;
class QLineEdit;
class QTabWidget;

/// Keeps a label that wraps as tall as its text is at the width it has. Layouts ask for that height
/// only where nothing between the label and the window hides the question, as a splitter and a
/// stack of panels do; what is too low there cuts lines in half.
void mantieneEntero(QLabel *rotulo);

/// Keeps a field at least as wide as its hint, up to a line's third, or a number of some digits.
void mantieneEntero(QLineEdit *campo);

/// Has a list measure its entries anew when the type changes, which it does for what it likes to
/// have and not for what it needs.
void mantieneEntera(QComboBox *lista);

/// Has tabs ask for the room that their pages need by now; of themselves they ask once.
void mantieneEnteras(QTabWidget *pestanas);
