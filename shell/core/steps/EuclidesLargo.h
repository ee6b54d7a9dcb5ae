// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/EnteroLargo.h"
#include "shell/core/steps/Pasos.h"

#include <QList>

/// A division of Euclid's algorithm and the coefficient of its remainder: with a the first number
/// and b the second, resto ≡ coeficiente·b (mod a).
struct DivisionLarga
{
    EnteroLargo dividendo, divisor, cociente, resto;
    EnteroLargo coeficiente;
};

/// Euclid's algorithm on two whole numbers of any size, division by division, with the coefficients
/// of the second number, which are all that an inverse needs. (Source: D. E. Knuth, The Art of
/// Computer Programming, vol. 2, 1997, algorithm 4.5.2X and exercise 15.)
class EuclidesLargo
{
public:
    /// a, b ≥ 0, not both 0. Throws EnteroLargo's errors.
    EuclidesLargo(const EnteroLargo &a, const EnteroLargo &b);

    const QList<DivisionLarga> &divisiones() const { return m_divisiones; }
    const EnteroLargo &mcd() const { return m_mcd; }
    /// Times b it is congruent to the greatest common divisor, modulo a.
    const EnteroLargo &coeficiente() const { return m_coeficiente; }

    /// The divisions as a small table, of which those in the middle are left out when there are
    /// many.
    TablaDePaso tabla() const;

private:
    QList<DivisionLarga> m_divisiones;
    EnteroLargo m_mcd;
    EnteroLargo m_coeficiente;
};
