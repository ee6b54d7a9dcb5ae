// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/units/GrupoUnidades.h"
#include "practice/engine/Ejercicio.h"

#include <optional>

/// What many kinds of exercise share: numbers to draw, numbers of answers, verdicts, steps.

/// The primes below 12 000, ascending.
const QList<qint64> &primosPequenos();
bool esPrimoPequeno(qint64 n);
/// A prime of a … b, of which there must be one, b < 12 000; uniform.
qint64 primoEntre(qint64 a, qint64 b, Sorteo &sorteo);

struct PotenciaDePrimo
{
    qint64 primo;
    int exponente;

    qint64 valor() const;
};
using Factores = QList<PotenciaDePrimo>;

/// So many different primes of a list, ascending, with exponents 1 … mayor, one of which is then
/// raised by 1: never a product of different primes alone.
Factores factoresConPotencia(const QList<qint64> &primos, int cuantos, int mayor, Sorteo &sorteo);
/// By trial division, n ≥ 1.
Factores factoresDe(qint64 n);
qint64 productoDe(const Factores &factores);
qint64 fiDe(const Factores &factores);
/// Carmichael's function, for which all powers of units are 1.
qint64 lambdaDe(const Factores &factores);
QString enFormula(const Factores &factores); ///< "2^3*5"

/// The units of Z_n, n ≤ GrupoUnidades::MayorModulo; computed once.
const GrupoUnidades &grupoDe(qint64 n);
/// A unit that is neither 1 nor −1, of at least that order; there must be one. Uniform.
qint64 unidadDe(qint64 n, Sorteo &sorteo, qint64 menorOrden = 2);

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

/// The remainder 0 … n − 1.
qint64 restoPositivo(qint64 a, qint64 n);

/// Number i of an answer where it has up to 9 digits, so that products fit; none of a longer one,
/// which is right nowhere but modulo something.
std::optional<qint64> numeroCorto(const RespuestaLeida &respuesta, qsizetype i = 0);
/// The remainder by n of a number of any length.
qint64 restoDe(const QString &numero, qint64 n);
/// a·x + b·y for numbers of any length, in digits.
QString combinacion(qint64 a, const QString &x, qint64 b, const QString &y);

Fallo correcto();
/// A number congruent to the remainder that is asked for.
Fallo sinReducir(qint64 n);
Fallo faltanNumeros(qsizetype pedidos);
/// A product that is not 1: which it is modulo n.
Fallo noEsInverso(qint64 a, qint64 dado, qint64 n);

QString listaDe(const QList<qint64> &numeros);
/// A number as it stands behind a sign of a formula: a negative one between brackets.
QString trasSigno(qint64 n);

Paso pasoCon(const QString &frase, const QStringList &formulas);
/// Steps behind steps.
Pasos seguidos(const Pasos &antes, const QList<Paso> &despues);
