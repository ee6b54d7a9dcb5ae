// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

/// One congruence as it was typed: n leaves `resto` when divided by `modulo`.
struct Congruencia
{
    QString resto;
    QString modulo;

    /// Whether both texts hold something; a row that does not is no part of the system.
    bool cuenta() const;

    /// Whether a counting row's remainder is a whole number, in decimal digits with or without
    /// sign.
    bool restoValido() const;
    /// Whether its modulus is a whole number above 0.
    bool moduloValido() const;
    bool valida() const { return restoValido() && moduloValido(); }

    /// What is wrong with a counting row, for the student; empty when nothing is.
    QString defecto() const;
};

/// A system of simultaneous congruences, row by row as it stands in the grid.
using SistemaCongruencias = QList<Congruencia>;

/// The most congruences that are posed.
inline constexpr int MayorSistema = 12;

/// A system of k congruences drawn at random (0 ≤ k ≤ MayorSistema). With 2k distinct primes, the
/// j-th of j + 2 bits, the i-th modulus is the product of the i-th and the (2k - i)-th, so that the
/// last one is a square and the moduli are coprime; remainders run from 1 to the modulus less 1.
SistemaCongruencias planteaSistema(int k);

/// The counting rows.
SistemaCongruencias filasQueCuentan(const SistemaCongruencias &sistema);

/// Two rows that no number fulfils at once: modulo a common divisor of their moduli they ask for
/// different remainders. Rows are counted from 1 as the grid labels them, those that do not count
/// included.
struct Contradiccion
{
    int fila1, fila2;
    QString divisor;        ///< the greatest common divisor of their moduli
    QString resto1, resto2; ///< what each asks for modulo that

    /// For the student; long numbers are left out.
    QString texto() const;
};

/// What became of a system.
struct Resolucion
{
    enum Desenlace {
        Resuelto,
        SinSolucion,
        FueraDeAlcance ///< the numbers are too long for the big-number service
    };
    Desenlace desenlace;
    QString resultado; ///< as the service tells it: the least non-negative solution, or "Error"
    QString motivo;    ///< why there is none, for the student; empty with a solution
};

/// Solves the counting rows, which must be valid. A system of congruences has a solution exactly
/// when every two of them have one, so that of one without there are two rows to show. (Source: D.
/// E. Knuth, The Art of Computer Programming, vol. 2, 1997, section 4.3.2, exercise 3.)
Resolucion resuelve(const SistemaCongruencias &sistema);

/// Whether a student's expression has the solution as its value. Throws what Evalua throws.
bool esSolucion(const SistemaCongruencias &sistema, const QString &expresion);
