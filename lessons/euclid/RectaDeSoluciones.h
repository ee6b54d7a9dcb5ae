// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/EnteroLargo.h"
#include "shell/core/steps/Lamina.h"

/// The whole solutions of a·x + b·y = c, for a, b > 0 and c ≥ 0, exact whatever the size of the
/// numbers: x = x0 + k·pasoX, y = y0 − k·pasoY, those without negative numbers for k in [kmin,
/// kmax]. (Source: K. H. Rosen, Elementary Number Theory and Its Applications, 2011, section 3.7.)
struct RectaDeSoluciones
{
    EnteroLargo a, b, c;
    EnteroLargo g;    ///< the greatest common divisor of a and b
    EnteroLargo t, s; ///< t·a + s·b = g
    /// What follows says nothing where there is no solution.
    EnteroLargo x0, y0, pasoX, pasoY, kmin, kmax;

    RectaDeSoluciones(const EnteroLargo &a, const EnteroLargo &b, const EnteroLargo &c);

    bool haySoluciones() const { return c % g == 0; }
    /// How many have no negative number.
    EnteroLargo cuantas() const { return kmax - kmin + 1; }
    EnteroLargo x(const EnteroLargo &k) const { return x0 + k * pasoX; }
    EnteroLargo y(const EnteroLargo &k) const { return y0 - k * pasoY; }
};

/// The line with the points of whole coordinates on it: those without negative numbers, and one
/// beyond at each end. Of many points some are drawn.
Lamina dibujoDeRecta(const RectaDeSoluciones &recta);
