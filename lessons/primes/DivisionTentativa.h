// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/Moneda.h"
#include "lessons/primes/ColFactores.h"
#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <QList>

/// What a trial division has done so far, to be looked at while it runs.
struct RastroDeDivision
{
    struct Division
    {
        Moneda divisor;
        double segundos = 0; ///< from the beginning, without the yields
        bool esElResto =
            false; ///< taken for prime because no divisor up to its square root was found
        Moneda alcanzado = {}; ///< the divisor that came next
    };
    QList<Division> divisiones;
    Moneda alcanzado = Moneda::deEntero(2); ///< the divisor that is tried
};

/// Factors a whole number by all divisors 2, 3, 5, 7, 9, …, without the bound of the square root:
/// for a prime it tries every odd number up to itself, which is what the student is to see. `n`,
/// which outlives the task, is divided down in place. A stopped run gives the factors found so far.
/// For n < 2 there are none. `rastro`, if any, outlives the task as well.
Tarea<ColFactores> FactorizaIngenuo(Moneda &n, Billete billete, RastroDeDivision *rastro = nullptr);

/// Factors a whole number by 2, 3 and the numbers 6m ± 1 up to its square root (Leonardo of Pisa,
/// "Liber Abaci", 1202, for the bound). The ticket's stop is not looked at. For 0 there are none;
/// of a negative number only the factors 2 and 3 are found. Throws Desbordamiento at the 32 768th
/// divisor (98305) that does not divide, because the steps are counted in 16 bits.
Tarea<ColFactores> FactorizaMejorado(Moneda n, Billete billete, RastroDeDivision *rastro = nullptr);
