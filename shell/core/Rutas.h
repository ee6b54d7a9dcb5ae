// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Paths are written in this program with back-slashes, and names are compared without regard to
/// case. This is where they meet a file system that thinks otherwise.

/// A path with the platform's separators.
QString rutaDePlataforma(const QString &ruta);

/// The path of the existing file or folder that `ruta` names without regard to case. A part that
/// exists as written is preferred; where nothing matches, the rest is kept as written (so that the
/// result can be created).
QString rutaExistente(const QString &ruta);

/// Whether a name that came from outside is one plain name that cannot lead out of a folder on any
/// system that shares it: not empty, no separator, no NUL, neither "." nor "..", no stream of
/// another file, no device (CON, LPT1.txt), no dot or blank at its end, which some systems drop.
bool esNombreSimple(const QString &nombre);
