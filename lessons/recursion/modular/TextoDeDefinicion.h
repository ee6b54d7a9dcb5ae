// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/modular/SucesionModular.h"

#include <QList>
#include <QString>

/// A definition as a student writes it: "f(n) = 2 f(n-1) - 3 f(n-2),  f(1) = 1,  f(2) = 1".
QString textoDeDefinicion(const DefinicionRecurrente &definicion);

/// The first values, not reduced by any modulus: so many, or fewer where fixed-point numbers end.
QList<Moneda> primerosValores(const DefinicionRecurrente &definicion, int cuantos);
