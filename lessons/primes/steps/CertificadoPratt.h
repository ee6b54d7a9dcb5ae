// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Lamina.h"
#include "shell/core/steps/Pasos.h"

#include <QList>
#include <QString>

/// Why p is prime: an element of order p − 1 modulo p, which the primes of p − 1 tell.
struct NodoDePratt
{
    struct Factor
    {
        QString primo;
        int exponente = 1;
    };
    QString p;
    QString testigo;        ///< the least whose order is p − 1
    QList<Factor> factores; ///< of p − 1, ascending
};

/// A proof that a number is prime which is checked by powers alone: each prime of p − 1 that is not
/// small has a node of its own (Vaughan Pratt, "Every prime has a succinct certificate", 1975).
class CertificadoPratt
{
public:
    /// Numbers of up to so many bits are factored at once.
    static constexpr int MasBits = 64;
    /// Primes below it are left to the reader, who divides them by 2, 3, 5 and 7.
    static constexpr int Evidentes = 100;

    /// Of a prime above 2 of at most MasBits bits.
    explicit CertificadoPratt(const QString &p);

    /// The number itself first, and each prime before those it rests on; no prime twice.
    const QList<NodoDePratt> &nodos() const { return m_nodos; }

    /// The proof of one node, with the tree of all.
    Paso paso(qsizetype nodo) const;

private:
    void agrega(const QString &p);
    Lamina arbol(qsizetype actual) const;
    qsizetype nodoDe(const QString &p) const;
    qreal ancho(qsizetype nodo) const;
    qreal dibuja(Lamina &lamina, qsizetype nodo, qsizetype actual, QPointF esquina) const;

    QList<NodoDePratt> m_nodos;
};
