// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/Celda.h"

#include <QList>
#include <QMap>
#include <QString>
#include <optional>

class HojaDeCalculo;

/// What one cell leaves in a file.
struct CeldaGuardada
{
    Celda celda;
    QString expresion;
    QString resultado;
    /// The exact value that other cells see, without parentheses; nothing for a cell that has none.
    std::optional<QString> valor;

    bool operator==(const CeldaGuardada &) const = default;
};

/// What a sheet leaves in a file.
struct HojaGuardada
{
    /// The cells that hold anything; those with a value stand in the order of the collection, on
    /// which the meaning of names such as "A12" beside "A1" hangs.
    QList<CeldaGuardada> celdas;
    /// Widths of columns that are not as wide as the others, in characters.
    QMap<int, int> anchos;

    bool operator==(const HojaGuardada &) const = default;
};

HojaGuardada contenidoDe(const HojaDeCalculo &hoja);
