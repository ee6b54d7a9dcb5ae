// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/primes/steps/CadenaDeCuadrados.h"
#include "shell/core/steps/Pasos.h"

/// The strong test to one base, step by step: n − 1, the power, a step a square, the verdict.
qsizetype pasosDeCadena(const CadenaDeCuadrados &cadena);
/// Step i of it; `primo` tells whether n is prime, whatever this base says.
Paso pasoDeCadena(const CadenaDeCuadrados &cadena, bool primo, qsizetype i);

/// The congruence by which a chain that passes does so.
Formula formulaDelFin(const CadenaDeCuadrados &cadena);

/// The congruences that a root of 1 gives, and the divisor of n that comes of it.
QList<Formula> formulasDeLaRaiz(const QString &raiz, const QString &n);
