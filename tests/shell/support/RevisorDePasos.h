// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/Sorteos.h"
#include "tests/shell/support/RevisorDeFormulas.h"

#include <QRandomGenerator>
#include <QTest>

/// Tries a tool's steps on so many random inputs: all steps of the first ones, `porEntrada` drawn
/// ones and the last one of the others, which is what time allows. `sortea` gives the steps of an
/// input, and may give the checker what they need; each input must compare something.
template <typename Sortea>
void revisaAlAzar(RevisorDeFormulas &revisor, Sortea sortea, int entradas = Sorteos,
                  int porEntrada = 2)
{
    constexpr int Enteras = 60;
    QRandomGenerator azar(20261122);
    for (int entrada = 0; entrada < entradas; ++entrada) {
        revisor.olvida();
        const int antes = revisor.comparadas();
        const Pasos pasos = sortea(azar);
        QVERIFY(!pasos.vacios());
        QList<qsizetype> elegidos = {pasos.cuantos() - 1};
        for (int i = 0; i < (entrada < Enteras ? pasos.cuantos() - 1 : porEntrada); ++i)
            elegidos << (entrada < Enteras ? i : azar.bounded(pasos.cuantos()));
        for (const qsizetype i : std::as_const(elegidos)) {
            for (const Formula &formula : pasos.paso(i).formulas) {
                const QString falta = revisor.revisa(formula);
                QVERIFY2(falta.isEmpty(), qPrintable(QStringLiteral("input %1, step %2: %3")
                                                         .arg(entrada)
                                                         .arg(i + 1)
                                                         .arg(falta)));
            }
        }
        QVERIFY2(revisor.comparadas() > antes, qPrintable(pasos.paso(0).frase));
    }
}
