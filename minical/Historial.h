// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/Celda.h"
#include "minical/ColVariables.h"

#include <QList>
#include <QString>
#include <deque>
#include <optional>

/// All that a cell holds: its two texts, and its value where it has one.
struct EstadoDeCelda
{
    struct Variable
    {
        QString valor;
        ColVariables::Orden orden;
        bool operator==(const Variable &) const = default;
    };

    QString expresion;
    QString resultado;
    std::optional<Variable> variable;

    bool operator==(const EstadoDeCelda &) const = default;
};

struct CambioDeCelda
{
    Celda celda;
    EstadoDeCelda antes;
    EstadoDeCelda despues;
};

/// What one action of the user changed.
using PasoDeEdicion = QList<CambioDeCelda>;

/// The actions that can be undone and redone, and whether what is in sight has been saved.
class Historial
{
public:
    /// Older steps are forgotten.
    static constexpr std::size_t MaximoDePasos = 500;

    /// Adds a step; what had been undone can no longer be redone. A step without changes is none.
    void anota(PasoDeEdicion paso);

    bool puedeDeshacer() const { return m_hechos > 0; }
    bool puedeRehacer() const { return m_hechos < m_pasos.size(); }

    /// The step to take back, or to do again; only when there is one.
    const PasoDeEdicion &deshace();
    const PasoDeEdicion &rehace();

    void marcaGuardado() { m_guardado = m_hechos; }
    /// What is in sight stands in no file, however much is undone.
    void marcaSinGuardar() { m_guardado.reset(); }
    bool modificado() const { return m_guardado != m_hechos; }

private:
    std::deque<PasoDeEdicion> m_pasos;
    std::size_t m_hechos = 0;
    /// The number of steps that led to the saved sheet; none when no steps lead there any more.
    std::optional<std::size_t> m_guardado = 0;
};
