// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

/// The kinds of the equation a·x + b·y = c.
QList<TipoDeEjercicio> ejerciciosDeEcuaciones();

/// Two numbers without a common divisor, the larger first, for whose algorithm so many divisions
/// are needed (at least 2): made from the last one upwards.
std::pair<qint64, qint64> coprimosDe(int divisiones, Sorteo &sorteo);

/// s, t with a·s + b·t = mcd(a, b), for a > b > 0 where b does not divide a.
std::pair<qint64, qint64> coeficientesDe(qint64 a, qint64 b);
