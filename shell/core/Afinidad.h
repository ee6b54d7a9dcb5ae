// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// How well a command answers what is typed to find it, 0 for not at all: every word begins a word
/// of its title (4) or stands within it (3), the title holds what is typed if only
/// its letters and digits count (2),
/// every word stands in the title or in what is told besides (1). Letter case and accents do not
/// count. Nothing typed is answered by every command alike (1).
int afinidad(const QString &buscado, const QString &titulo, const QString &detalle);
