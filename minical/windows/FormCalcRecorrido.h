// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QModelIndex>

// Where the keys with Ctrl lead in a grid; a cell is in use when there is a text in it to edit.

/// Where the last row and the last column in use meet; the first cell of an empty grid.
QModelIndex ultimaEnUso(const QAbstractItemModel &modelo);

/// The end of the block of cells in use in a direction, which is one step of `filas` rows or
/// `columnas` columns; out of a block, the beginning of the next one; where there is none, the
/// edge.
QModelIndex finDeBloque(const QModelIndex &desde, int filas, int columnas);
