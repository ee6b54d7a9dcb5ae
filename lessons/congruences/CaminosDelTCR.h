// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/congruences/FilasDelTCR.h"
#include "shell/core/steps/Pasos.h"

// The two ways to a solution that steps show, of one row or more. Both compute what they need at
// once and throw EnteroLargo's errors.

/// Gauss's construction, for coprime moduli.
Pasos pasosDeSuma(const QList<FilaDelTCR> &filas);

/// Two rows at a time, for any moduli.
Pasos pasosDeUniones(const QList<FilaDelTCR> &filas);

/// The rows that a solution fulfils: the end of both ways.
Paso comprobacionDelTCR(const QList<FilaDelTCR> &filas, const EnteroLargo &solucion);

/// Two terms that are congruent.
Formula congruencia(const QString &uno, const QString &otro, const EnteroLargo &modulo);
