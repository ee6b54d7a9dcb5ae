// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What the note of a wrong answer (Fallo::nota) says to a teacher, in the interface's language:
/// "signo equivocado" for "signo". A note that this program does not know, from a file of a later
/// one, stays as it is.
QString palabrasDeNota(const QString &nota);

/// Whether this program has words for it.
bool tienePalabrasDeNota(const QString &nota);
