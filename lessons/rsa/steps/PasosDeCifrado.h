// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/steps/ClaveEnCifras.h"
#include "shell/core/steps/Pasos.h"

/// The first block of a text all the way: its characters, their codes, the number they make, its
/// power with s by repeated squaring, the power of that with t, and the characters again. None for
/// an empty text, r < 1, or a text that cannot travel. Computed when first looked at.
Pasos pasosDeCifrado(const ClaveEnCifras &clave, const QString &texto);

/// A character as steps name it: blanks and control characters in words.
QString nombreDeCaracter(QChar caracter);
