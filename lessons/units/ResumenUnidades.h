// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/units/GrupoUnidades.h"

#include <QString>

/// What there is to say of the units of Z_n in a few lines: how many, why so many, and whether one
/// of them generates them all.
QString resumenDelGrupo(const GrupoUnidades &grupo);

/// What the powers of `a` tell about it.
QString resumenDePotencias(const GrupoUnidades &grupo, std::int32_t a);

/// A whole number ≥ 0 in subscript digits: 12 gives "₁₂".
QString subindice(std::int32_t n);
