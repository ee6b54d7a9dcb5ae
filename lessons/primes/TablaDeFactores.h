// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <QList>
#include <QString>

class ColFactores;
struct RastroDeDivision;

/// A row of the table of factors.
struct FilaDeFactor
{
    QString factor;
    QString exponente;
    bool primo = true;     ///< false for a composite that could not be split
    QString hallazgo = {}; ///< by what it was found and in what time, for the student
};

/// A factor as it was split off.
struct Corte
{
    QString factor;
    qint64 exponente = 1;
    bool primo = true;
    bool esElResto = false; ///< what was left, and known to be prime without being divided
    QString como = {};      ///< by what and in what time, for the student
    /// Trial division: the divisor that came next, whose square is above what was left.
    QString alcanzado = {};
};

/// What has come of a factorization: the factors found, and what became of the rest.
struct TablaDeFactores
{
    enum Desenlace {
        Completa,
        Detenida,       ///< before its end; what was not divided yet is `resto`
        QuedaCompuesto, ///< in the last row or rows, which could not be split
        EsCero,         ///< what was to be factored, which every prime divides
        EsNegativo,     ///< which trial division does not factor
        NoEsEntero,
        SinMemoria ///< the factors are those found by then
    };

    QString numero; ///< what was to be factored
    QList<FilaDeFactor> filas = {};
    Desenlace desenlace = Completa;
    QString resto = {};       ///< what no row holds; nothing where all was divided
    QList<Corte> cortes = {}; ///< the same factors in the order in which they were found

    /// The factors as a product, what may be composite in brackets: "2² · 3 · (9999999999971)";
    /// empty without any.
    QString producto() const;

    /// What the table shows, as a sentence for the student.
    QString frase() const;
};

/// The factors that trial division has found of a whole number of its size, to its end or until it
/// was stopped.
TablaDeFactores tablaDe(const QString &numero, const ColFactores &factores);

/// The divisions of such a run, as the cuts that it made.
QList<Corte> cortesDe(const RastroDeDivision &rastro);

/// The factors of |n|, whatever its size, by libbignum: primes ascending, then what it could not
/// split. Blocks until they are found, or until the effort of the library is spent.
TablaDeFactores factorizaGrande(const QString &n);

/// The same where the window may go on meanwhile (Aparte). A stopped run leaves what was not found
/// by then as one composite.
Tarea<TablaDeFactores> factorizaAparte(QString n, Billete billete);

/// Whether that may take so long that the student is to be told before.
bool puedeTardar(const QString &n);
