// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

// How an answer of several numbers is parted, before any of them is read.

/// Splits at what stands between the numbers of a list, but not inside brackets.
QStringList partesDeLista(QString texto);

/// Blanks part numbers where no sign joins them: "3 5" but not "3 + 5".
QStringList partesSueltas(const QString &parte);

/// "x = … y = …" parted by a comma, whatever stands between them.
QString conComaEntreIncognitas(QString texto);

/// Blanks between digits group them, where they cannot part numbers.
QString sinBlancosDeGrupo(QString texto);
