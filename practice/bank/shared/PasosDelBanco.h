// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"

// What solutions of exercises are put together from.

/// A number as it stands behind a sign of a formula: a negative one between brackets.
QString trasSigno(qint64 n);

Paso pasoCon(const QString &frase, const QStringList &formulas);
/// Steps behind steps.
Pasos seguidos(const Pasos &antes, const QList<Paso> &despues);
