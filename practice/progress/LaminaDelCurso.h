// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/progress/Dominio.h"
#include "shell/core/steps/Lamina.h"

/// The lessons and what they build on, with how much of each is mastered and what is due.
Lamina laminaDelCurso(const QHash<QString, Dominio> &dominios, qint64 hoy);

/// When a review is due, as seen today: "hoy", "en 3 días", "—".
QString cuandoToca(const Dominio &dominio, qint64 hoy);
