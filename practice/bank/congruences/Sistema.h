// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

#include <optional>

/// x ≡ restos[i] (mod modulos[i]), as exercises draw it.
struct Sistema
{
    QList<qint64> restos, modulos;

    /// The solutions differ by this one: the least common multiple.
    qint64 periodo() const;
    /// The least x ≥ 0; none where two of them contradict each other.
    std::optional<qint64> solucion() const;
    /// The first one that x, in digits, does not fulfil; −1 where it fulfils all.
    qsizetype primeraSinCumplir(const QString &x) const;
    qsizetype cuantasCumple(const QString &x) const;
    QString texto() const; ///< "x ≡ 2 (mod 5), x ≡ 3 (mod 7)"
};

/// So many of the moduli, of which every two are coprime, in some order. No remainder is below
/// menorResto, and the least solution is larger than all moduli, so that none of the remainders
/// gives it away.
Sistema sistemaDe(const QList<qint64> &modulos, int cuantos, Sorteo &sorteo, qint64 menorResto = 1);

/// Why it has its solution, or none.
Pasos pasosDeSistema(const Sistema &sistema);
