// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/Moneda.h"

#include <cstdint>

/// The extended greatest common divisor of two whole numbers, computed when a result is first read
/// after one of them was written. The division of the first step is of Número2 by Número1.
/// (Source: D. E. Knuth, The Art of Computer Programming, vol. 2, 1997, algorithm 4.5.2X.)
class clsExtMCD
{
public:
    void ponNúmero1(Moneda valor);
    Moneda Número1() const { return m_numero1; }
    void ponNúmero2(Moneda valor);
    Moneda Número2() const { return m_numero2; }

    /// The number of divisions of the last computation that divided: where one of the numbers is 0
    /// nothing is divided and the count stays as it was.
    std::int16_t NumDivisiones();

    /// Positive; 1 for two zeros, because 0 stands for "not computed yet".
    Moneda MCD();

    /// Coeficiente1 · Número1 + Coeficiente2 · Número2 = MCD, unless both numbers are 0.
    Moneda Coeficiente1();
    Moneda Coeficiente2();

private:
    void calculaSiFalta();
    void calcula();
    void divide(Moneda a, Moneda b);

    Moneda m_numero1;
    Moneda m_numero2;
    std::int16_t m_numDivisiones = 0;
    Moneda m_mcd;
    Moneda m_coeficiente1;
    Moneda m_coeficiente2;
};
