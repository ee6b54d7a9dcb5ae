// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

/// The kinds that count primes and divisors, and those of the tests of primality.
QList<TipoDeEjercicio> ejerciciosDeDivisores();
