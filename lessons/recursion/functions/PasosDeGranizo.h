// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"

#include <QString>

/// Why a hailstone sequence runs as it does: the parities of its first values, drawn; its glide,
/// which is how many steps it takes to fall below its start, and the halves and triples that make
/// it fall (Riho Terras, "A stopping time problem on the positive integers", 1976); then step by
/// step, the first thousand, fewer of long numbers. `inicio` is a number as the service writes it;
/// `pasos` of them, from 1.
Pasos pasosDeGranizo(const QString &inicio, qint64 pasos);
