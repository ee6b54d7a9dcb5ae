// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

/// The numbers of a valid key as decimal digits, held by value for steps and attacks.
struct ClaveEnCifras
{
    QString q1, q2;      ///< the primes
    QString q, fi, s, t; ///< their product, (q1 − 1)·(q2 − 1), and the exponents
    int r = 1;           ///< characters a block

    /// Whether no more than that many bits: steps that cost a power or a division a bit are shown
    /// for short numbers only.
    static bool corto(const QString &numero, int bits);
};

/// A key that anybody may attack, with the name under which it is offered, in Spanish.
struct ClavePublicada
{
    QString nombre;
    ClaveEnCifras clave;
};

/// Small and weak keys, and a strong one, whose primes are known. (Sources: R. L. Rivest,
/// A. Shamir, L. Adleman, "A Method for Obtaining Digital Signatures and Public-Key Cryptosystems",
/// 1978, section VIII; D. Atkins, M. Graff, A. K. Lenstra, P. C. Leyland, "The Magic Words Are
/// Squeamish Ossifrage", 1995, for the one of 129 digits.)
QList<ClavePublicada> clavesPublicadas();
