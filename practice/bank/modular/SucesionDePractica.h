// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/modular/SucesionModular.h"
#include "practice/engine/Ejercicio.h"

#include <optional>

/// f(n) = alfa·f(n − 1) + beta·f(n − 2) for n > 2, modulo m: small whole numbers.
struct SucesionDePractica
{
    qint64 alfa, beta, f1, f2, m;

    /// "f(n) = 2f(n − 1) + 3f(n − 2), con f(1) = 1 y f(2) = 1, módulo 7"
    QString texto() const;
    /// f(1) … f(n), reduced.
    QList<qint64> valores(int n) const;
    DefinicionRecurrente definicion() const;
    /// Where it begins to repeat itself, and how long; nothing where 249 pairs do not tell.
    std::optional<PeriodoModular> periodo() const;
    /// Its steps as the lesson shows them.
    Pasos pasos() const;
};

/// The modulus or the coefficients, from the values.
Ejercicio moduloOculto(int nivel, Sorteo &sorteo);

/// Whether a sequence, or all with its coefficients, repeat from the first term on.
Ejercicio puramentePeriodica(int nivel, Sorteo &sorteo);
