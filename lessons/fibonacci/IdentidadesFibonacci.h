// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

/// An identity tried on numbers: its two sides as formulas, and what each of them comes to.
struct IdentidadProbada
{
    QString nombre;    ///< Spanish, not yet translated
    QString formula;   ///< with m and n
    QString izquierda; ///< the value of the left side
    QString derecha;   ///< of the right side

    bool seCumple() const { return izquierda == derecha; }
};

/// The largest index that identities are tried on: F of a sum of two of them is within the service.
inline constexpr int MaximoDeIdentidades = 5'000;

/// Cassini's, the sum of the first, the sum of the squares, the addition formula, and the greatest
/// common divisor, each side computed by itself; m and n from 1 to MaximoDeIdentidades.
QList<IdentidadProbada> pruebaIdentidades(int m, int n);
