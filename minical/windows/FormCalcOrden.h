// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/windows/FormCalc.h"

#include <QKeySequence>
#include <QList>
#include <variant>

/// A command of the sheet: its key, its picture and texts, and what carries it out.
struct FormCalc::Orden
{
    /// Where it can be reached besides by its keys.
    enum class Sitio {
        Barra,       ///< a button
        TrasRaya,    ///< a button that begins a group
        SinBoton,    ///< the menu of the grid
        EnLaRejilla, ///< the same; its keys mean something else in a text field
    };

    QString clave;
    QString imagen;
    QString rotulo;
    QString ayuda;
    QList<QKeySequence> teclas;
    std::variant<void (FormCalc::*)(), Tarea<> (FormCalc::*)()> hace;
    Sitio sitio = Sitio::Barra;
};
