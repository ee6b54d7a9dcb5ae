// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What is asked of a modulo n for numbers of any size: the greatest common divisor and, where it
/// is 1, the inverse.
struct InversoGrande
{
    QString mcd;
    QString inverso; ///< empty where `a` is no unit
};

/// `a` is a whole number and n ≥ 1, both in decimal digits.
InversoGrande invierte(const QString &a, const QString &n);

/// A number of that many decimal digits, at least 12, whose factors the service finds at once: two
/// primes of four digits times a large one.
QString moduloFacil(int cifras);
