// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/euclid/clsExtMCD.h"

#include <QString>

/// The exercise of the lesson: two numbers for which the algorithm makes exactly n divisions.
class CuestionEuclides
{
public:
    /// What is said of an answer.
    struct Juicio
    {
        /// Whether the count of divisions is n. Without data it may be by chance: a blank field
        /// counts as 0, and where a number is 0 the count stays that of the numbers before.
        bool coincide;
        bool faltanDatos;
        QString palabra;
    };

    /// Judges the fields as they were typed: whole numbers within the range of Moneda, n of at most
    /// 100 and rounded half to even. A value above its bound calls the notice of the bound. Throws
    /// what Evalua throws.
    Juicio juzga(const QString &a, const QString &b, const QString &n);

private:
    clsExtMCD m_mcd;
};
