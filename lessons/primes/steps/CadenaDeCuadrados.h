// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// An even number as 2^s · d, d odd.
struct ParteImpar
{
    int s = 0;
    QString d;
};

/// Of an even number above 0.
ParteImpar parteImpar(const QString &par);

/// n − 1, for n > 0.
QString anterior(const QString &n);

/// The strong test of an odd n to a base: base^d, and its squares (Gary Miller, "Riemann's
/// hypothesis and tests for primality", 1976; Michael Rabin, "Probabilistic algorithm for testing
/// primality", 1980).
struct CadenaDeCuadrados
{
    QString n;
    QString base;
    ParteImpar exponente; ///< of n − 1
    /// base^(d · 2^i) mod n for i = 0, 1, … until 1 or n − 1 is reached, or the exponent n − 1.
    QStringList valores;

    bool acabaEnUno() const { return valores.last() == u"1"; }
    /// Whether n behaves as a prime to this base.
    bool pasa() const;
    /// A square root of 1 modulo n that is neither 1 nor n − 1, where one was met: n is composite,
    /// and mcd(root − 1; n) divides it.
    std::optional<QString> raizDeUno() const;
};

/// For odd n > 3 and a base from 2 to n − 2.
CadenaDeCuadrados cadenaDeCuadrados(const QString &n, const QString &base);

/// The first of the primes that n, composite and odd, does not pass the test to; 2 if it passes
/// all that are tried.
QString primerTestigo(const QString &n);

/// The primes below 230, by which bases are tried.
const QStringList &basesPrimas();
