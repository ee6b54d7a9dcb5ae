// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// The one of the words (Spanish) that was answered, in that language or in the interface's: "Si"
/// for "sí", "n^2" or "Θ(n²)" for "n²"; none where it is another.
QString palabraRespondida(const QString &texto, const QStringList &palabras);
