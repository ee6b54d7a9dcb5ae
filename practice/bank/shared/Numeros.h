// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/units/GrupoUnidades.h"
#include "practice/engine/Sorteo.h"

// The numbers of exercises, which the machine can hold.

/// The primes below 12 000, ascending.
const QList<qint64> &primosPequenos();
bool esPrimoPequeno(qint64 n);
/// Those from a to b, b < 12 000.
QList<qint64> primosEntre(qint64 a, qint64 b);
/// One of them, of which there must be one; uniform.
qint64 primoEntre(qint64 a, qint64 b, Sorteo &sorteo);

/// The numbers of a … b that fulfil a condition.
template <typename Condicion>
QList<qint64> losQue(qint64 a, qint64 b, Condicion sirve)
{
    QList<qint64> numeros;
    for (qint64 n = a; n <= b; ++n) {
        if (sirve(n))
            numeros << n;
    }
    return numeros;
}
/// The numbers from a to b that have no divisor in common with n.
QList<qint64> coprimosCon(qint64 n, qint64 a, qint64 b);

/// The units of Z_n, n ≤ GrupoUnidades::MayorModulo; computed once.
const GrupoUnidades &grupoDe(qint64 n);
/// A unit that is neither 1 nor −1, of at least that order; there must be one. Uniform.
qint64 unidadDe(qint64 n, Sorteo &sorteo, qint64 menorOrden = 2);
/// The inverse of a unit a modulo m, from 1 to m − 1.
qint64 inversoModular(qint64 a, qint64 m);

/// The remainder 0 … n − 1.
qint64 restoPositivo(qint64 a, qint64 n);
/// The remainder by n of a number of any length.
qint64 restoDe(const QString &numero, qint64 n);
/// b^e mod m; 0 ≤ b, e ≥ 0, 1 ≤ m < 2^31.
qint64 potenciaModular(qint64 b, qint64 e, qint64 m);
/// b^e, as long as it fits.
qint64 potencia(qint64 b, int e);
/// F(n), F(0) = 0, F(1) = 1, n from 0 to 92.
qint64 fibonacciDe(int n);
/// x(0) … x(n + 1) of x(k) = a·x(k − 1) + c; n ≥ 0, and all must fit.
QList<qint64> valoresDePrimerOrden(qint64 a, qint64 c, qint64 x0, int n);
/// a·x + b·y for numbers of any length, in digits.
QString combinacion(qint64 a, const QString &x, qint64 b, const QString &y);

QString numero(qint64 n);
/// Numbers as a text: with `entre` between them.
QString listaDe(const QList<qint64> &numeros, const QString &entre = QStringLiteral(", "));
