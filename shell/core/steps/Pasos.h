// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Formula.h"
#include "shell/core/steps/Lamina.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

/// A small table within a step. Cells are plain texts; digits stand ungrouped and whole.
struct TablaDePaso
{
    QStringList cabecera;
    QList<QStringList> filas;
    QList<qsizetype> marcadas = {}; ///< the rows that the step is about
};

/// One step of an algorithm on the student's own numbers: what is done, in a sentence; the formulas
/// that it gives; the rule by which they hold. Texts are those of the interface's language already.
/// Numbers stand whole and ungrouped in them: whoever shows a step shortens and groups them.
struct Paso
{
    QString frase;
    QList<Formula> formulas = {};
    QString regla = {};
    TablaDePaso tabla = {};
    Lamina lamina = {};
};

/// The steps that show why a tool's result holds. Made one by one when they are asked for, so that
/// thousands of them cost nothing until they are seen.
class Pasos
{
public:
    using Hace = std::function<Paso(qsizetype)>;

    /// No steps.
    Pasos() = default;
    explicit Pasos(const QList<Paso> &pasos);
    /// `hace` is asked for the steps 0 … cuantos − 1, in any order and more than once; what it
    /// needs it holds by value.
    Pasos(qsizetype cuantos, Hace hace);

    qsizetype cuantos() const { return m_cuantos; }
    bool vacios() const { return m_cuantos == 0; }
    /// Step i, from 0 on.
    Paso paso(qsizetype i) const { return m_hace(i); }

    /// Whether they make a film: their drawings change a little from one to the next.
    bool animables() const { return m_animables; }
    Pasos &&comoPelicula() &&;

private:
    qsizetype m_cuantos = 0;
    Hace m_hace;
    bool m_animables = false;
};
