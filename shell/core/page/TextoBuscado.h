// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// A text as a search sees it, of the same length: small letters without their accents, and every
/// blank an ordinary one.
QString paraBuscar(const QString &texto);

/// Where the searched text begins in a text, each place behind the end of the one before. Letter
/// case and accents do not count, and the blanks at the ends of the text are no part of it. Nowhere
/// for an empty one.
QList<qsizetype> halla(const QString &buscado, const QString &texto);
