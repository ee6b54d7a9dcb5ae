// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/units/GrupoUnidades.h"
#include "shell/core/steps/Lamina.h"

/// The powers of an element on a circle, with the arrows from each to the next up to the one of
/// exponent `hasta`. What never comes back stands in a tail in front of it. Of more than 60 powers
/// only the points are drawn, of more than 400 nothing.
Lamina orbitaDeElemento(const PotenciasDeElemento &potencias, qsizetype hasta);
