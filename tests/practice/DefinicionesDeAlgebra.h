// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/practice/EjercicioLeido.h"

using EsBuena = std::function<bool(const Leido &, const Dada &)>;

/// What is a right answer to each kind of the algebra, by its definition or by an entry of the
/// library that the judge does not use.
const QList<std::pair<QString, EsBuena>> &definicionesDeAlgebra();
