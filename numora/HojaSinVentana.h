// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Writes the sheet of a code as a PDF file, without a window, in the language `idioma`. Gives what
/// a program returns: 0, or 1 with a sentence on the standard error stream.
int hojaSinVentana(const QString &codigo, const QString &archivo, bool conSoluciones,
                   const QString &idioma);
