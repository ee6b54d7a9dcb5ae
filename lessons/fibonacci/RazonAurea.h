// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

/// A quotient of neighbours: F(n+1) / F(n), and how far it is from the golden ratio.
struct CocienteFibonacci
{
    int n = 0;
    QString f;         ///< F(n)
    QString siguiente; ///< F(n+1)
    /// F(n+1) / F(n) as a decimal fraction, cut off where more digits would say nothing.
    QString cociente;
    /// The decimal logarithm of |F(n+1) / F(n) - φ|. From F(n+1) - φ F(n) = (1 - φ)^n the distance
    /// is φ^(-n) / F(n), which needs no subtraction of nearly equal numbers.
    double logError = 0;

    /// Whether the quotient lies above φ; they take turns.
    bool porExceso() const { return n % 2 == 0; }
};

/// The largest n of a table of quotients.
inline constexpr int MaximoDeCocientes = 500;

/// The quotients for n from 1 to `hasta`, which is at most MaximoDeCocientes.
QList<CocienteFibonacci> cocientesFibonacci(int hasta);

/// The golden ratio with so many decimals, 1 to 1000, truncated, with a decimal comma.
QString numeroAureo(int decimales);

/// A number given by its decimal logarithm as a student reads it: "4,73 · 10⁻⁵".
QString textoDePotencia(double logaritmo);
