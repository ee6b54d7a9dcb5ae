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

/// The least non-negative solution of the counting rows, which must be valid; "Error" when there is
/// none.
QString solucion(const SistemaCongruencias &sistema);

/// Whether a student's expression has the solution as its value. Throws what Evalua throws.
bool esSolucion(const SistemaCongruencias &sistema, const QString &expresion);
