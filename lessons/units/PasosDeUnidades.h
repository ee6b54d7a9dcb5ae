// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/units/FuncionEuler.h"
#include "lessons/units/GrupoUnidades.h"
#include "shell/core/steps/Pasos.h"

/// Lagrange's theorem seen on the orders of all units: how many units have each, and that each
/// divides their number.
Pasos pasosDelGrupo(const GrupoUnidades &grupo);

/// All about an element: its inverse by Euclid's table or why it has none, its powers until they
/// repeat, as a circle that is a film, and for a unit how its powers share out the group, and the
/// inverse as a power by repeated squaring.
Pasos pasosDeElemento(const GrupoUnidades &grupo, std::int32_t a);

/// φ(n) by factors: n in prime powers, φ of each, their product. Where factors are missing, that.
Pasos pasosDeFi(const FuncionEuler &euler, const QString &n);
