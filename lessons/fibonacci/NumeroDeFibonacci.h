// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/OtrasEntradas.h"

/// F(n) in decimal digits, 0 ≤ n ≤ MaximoDeFibonacci.
inline QString numeroDeFibonacci(int n)
{
    return CalculaFibonacci(ViaDeFibonacci::Duplicacion, n, 1).valor;
}
