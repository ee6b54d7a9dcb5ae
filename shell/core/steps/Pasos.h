// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Formula.h"
#include "shell/core/steps/Lamina.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

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

    /// Even how many they are costs something: `hace` is asked once, when they are first looked at.
    /// What it needs it holds by value; it must not throw.
    static Pasos aplazados(std::function<Pasos()> hace);
    /// One after the other.
    static Pasos seguidos(const QList<Pasos> &partes);

    qsizetype cuantos() const { return hechos().m_cuantos; }
    bool vacios() const { return cuantos() == 0; }
    /// Step i, from 0 on.
    Paso paso(qsizetype i) const { return hechos().m_hace(i); }

    /// Whether they make a film: their drawings change a little from one to the next.
    bool animables() const { return m_animables || hechos().m_animables; }
    Pasos &&comoPelicula() &&;

private:
    struct Aplazados;
    const Pasos &hechos() const;

    qsizetype m_cuantos = 0;
    Hace m_hace;
    bool m_animables = false;
    std::shared_ptr<Aplazados> m_aplazados; ///< null unless they are still to be made, or were
};
