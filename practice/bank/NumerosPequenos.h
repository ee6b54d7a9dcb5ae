// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

// Arithmetic on the numbers of exercises, which the machine can hold.

/// b^e mod m; 0 ≤ b, e ≥ 0, 1 ≤ m < 2^31.
qint64 potenciaModular(qint64 b, qint64 e, qint64 m);
/// b^e, as long as it fits.
qint64 potencia(qint64 b, int e);
/// The inverse of a unit a modulo m, from 1 to m − 1.
qint64 inversoModular(qint64 a, qint64 m);
/// F(n), F(0) = 0, F(1) = 1, n from 0 to 92.
qint64 fibonacciDe(int n);
/// The primes from a to b.
QList<qint64> primosEntre(qint64 a, qint64 b);
/// The numbers from a to b that have no divisor in common with n.
QList<qint64> coprimosCon(qint64 n, qint64 a, qint64 b);
/// Numbers as a text: with `entre` between them.
QString textoDe(const QList<qint64> &numeros, const QString &entre);
