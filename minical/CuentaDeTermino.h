// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/Termino.h"

/// More operations than these are not followed one by one.
constexpr int MasOperaciones = 300;

/// Computes an expression by the number service as one would by hand, the leftmost innermost
/// operation first, and notes the turn and the value of each piece. Gives how many operations there
/// are; nothing where one has no value, where there are too many, and where it takes too long.
std::optional<int> cuenta(Termino &termino);

/// The piece of that turn.
const Termino &operacion(const Termino &raiz, int turno);

/// The expression as a formula of steps, with the values of the first `hechas` operations in their
/// places.
QString escrito(const Termino &termino, int hechas);
