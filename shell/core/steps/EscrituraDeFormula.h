// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Formula.h"

/// A formula in the forms in which it leaves the program. Numbers are whole in all of them.

/// In a line of plain text: "2⁹⁷ ≡ 5 (mod 7)", "(a + b)/c".
QString comoTexto(const Formula &formula);
/// The same for a piece of one.
QString comoTexto(const NodoDeFormula &nodo);

/// In LaTeX's mathematics, without the dollar signs.
QString comoLatex(const Formula &formula);

/// As it is said, for a screen reader: "2 elevado a 97 congruente con 5 módulo 7".
QString comoPalabras(const Formula &formula);

/// Signs as they are printed: "·" for "*", "≡" for "==".
QString signoImpreso(const QString &signo);
