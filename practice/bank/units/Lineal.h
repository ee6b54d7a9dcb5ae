// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

/// The kind on a·x ≡ b (mod n).
QList<TipoDeEjercicio> ejerciciosDeCongruenciasLineales();
