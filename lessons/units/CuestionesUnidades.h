// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/Cuestion.h"

#include <cstdint>

/// Draws a question on the group of units: an inverse, an order or a primitive root.
Cuestion sorteaDelGrupo();
/// Draws a question on Euler's function or on its use: a power with a large exponent.
Cuestion sorteaDeEuler();

// The questions for given numbers; n is a modulus of 2..GrupoUnidades::MayorModulo.

/// Asks for the inverse of the unit `a`; any number congruent to it is right.
Cuestion cuestionInverso(std::int32_t n, std::int32_t a);
/// Asks for the order of the unit `a`.
Cuestion cuestionOrden(std::int32_t n, std::int32_t a);
/// Asks for a primitive root, of which there must be one; any number congruent to one is right.
Cuestion cuestionRaizPrimitiva(std::int32_t n);
/// Asks for φ(n).
Cuestion cuestionFi(std::int32_t n);
/// Asks for the remainder of a^k by n, for a unit `a` and k ≥ 0.
Cuestion cuestionPotencia(std::int32_t n, std::int32_t a, std::int32_t k);
