// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/euclid/clsExtMCD.h"

#include <QList>
#include <QString>
#include <cstdint>

/// The solutions x, y ≥ 0 of a·x + b·y = c in whole numbers: what the topic shows of them.
struct SolucionesDiofanticas
{
    /// At most the first and the last 500 solutions are listed, with a row of dots between them.
    static constexpr std::int64_t MaximoListado = 1000;

    struct Solucion
    {
        std::int64_t numero; ///< counted from 1; 0 is the row of dots
        std::int64_t x;
        std::int64_t y;
    };

    QList<Solucion> lista;
    QString cuenta;  ///< "4 soluciones" and the like
    QString general; ///< the general solution, or the only one; may be empty
};

/// Solves the change-making problem. With t·a + s·b = g = gcd(a, b), the solutions of the equation
/// are x = (t·c + k·b)/g, y = (s·c - k·a)/g, and those without negative numbers have k between
/// ⌈-t·(c/b)⌉ and ⌊s·(c/a)⌋, both computed in double precision. (Source: K. H. Rosen, Elementary
/// Number Theory and Its Applications, 2011, section 3.7.)
class EcuacionDiofantica
{
public:
    /// Numbers up to Moneda::MaximoEntero. Throws Desbordamiento when the first k does not fit 32
    /// bits.
    SolucionesDiofanticas resuelve(Moneda a, Moneda b, Moneda c);

private:
    clsExtMCD m_mcd;
};
