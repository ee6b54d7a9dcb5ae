// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>
#include <compare>
#include <optional>

/// A place in the grid; row 0 and column 0 are the headers.
struct Celda
{
    /// Rows and columns of the grid, headers included: the data cells are A1 to Y99.
    static constexpr int Filas = 100;
    static constexpr int Columnas = 26;

    int fila = 0;
    int columna = 0;

    bool esDeDatos() const { return fila > 0 && columna > 0 && fila < Filas && columna < Columnas; }

    auto operator<=>(const Celda &) const = default;
};

/// The header of a column: "A" for column 1, "Y" for 25; empty for column 0.
QString letraDeColumna(int columna);

/// The header of the column followed by that of the row: "C12"; of a header, the part it has.
QString NombreCelda(Celda celda);

/// The data cell of that name; nothing for any other text. Capital letters count.
std::optional<Celda> celdaDeNombre(QStringView nombre);
