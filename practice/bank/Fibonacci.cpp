// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/Fibonacci.h"

QList<TipoDeEjercicio> ejerciciosDeFibonacci()
{
    return {};
}
