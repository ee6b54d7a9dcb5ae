// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/steps/Ataques.h"

/// The attacks one by one; their steps lack what all have in common, the first. Those that search
/// yield to the ticket; all throw ErrorEjecucion::Desbordamiento for numbers that are too long.

Tarea<ResultadoDeAtaque> porTabla(Victima victima, Billete billete);
Tarea<ResultadoDeAtaque> porFactorizacion(Victima victima, Billete billete);
Tarea<ResultadoDeAtaque> porFermat(Victima victima, Billete billete);
ResultadoDeAtaque porRaiz(const Victima &victima);
ResultadoDeAtaque porFi(const Victima &victima);

/// What follows once q = p1·p2 is known: φ(q) and t by Euclid's table, after the steps that found
/// them. The text is read elsewhere, a block a yield.
ResultadoDeAtaque conFactores(const Victima &victima, const QString &p1, const QString &p2,
                              const QList<Paso> &hallazgo);

/// An attack that ended without finding, with a last step that says so.
ResultadoDeAtaque sinExito(ResultadoDeAtaque::Desenlace desenlace, const QList<Paso> &pasos,
                           const QString &frase, const QList<Formula> &formulas = {});
/// The student stopped it.
ResultadoDeAtaque detenido();
/// The text that numbers of blocks give.
QString textoDe(const QStringList &numeros);
