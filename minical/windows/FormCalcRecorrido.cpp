// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/windows/FormCalcRecorrido.h"

#include <QAbstractItemModel>
#include <algorithm>

namespace {

bool enUso(const QModelIndex &celda)
{
    return !celda.data(Qt::EditRole).toString().isEmpty();
}

} // namespace

QModelIndex ultimaEnUso(const QAbstractItemModel &modelo)
{
    int ultimaFila = 0;
    int ultimaColumna = 0;
    for (int f = 0; f < modelo.rowCount(); ++f) {
        for (int c = 0; c < modelo.columnCount(); ++c) {
            if (!enUso(modelo.index(f, c)))
                continue;
            ultimaFila = f;
            ultimaColumna = std::max(ultimaColumna, c);
        }
    }
    return modelo.index(ultimaFila, ultimaColumna);
}

QModelIndex finDeBloque(const QModelIndex &desde, int filas, int columnas)
{
    const auto siguiente = [&](const QModelIndex &celda) {
        return celda.sibling(celda.row() + filas, celda.column() + columnas);
    };
    QModelIndex celda = desde;
    QModelIndex otra = siguiente(celda);
    if (otra.isValid() && enUso(celda) && enUso(otra)) {
        for (; otra.isValid() && enUso(otra); otra = siguiente(otra))
            celda = otra;
        return celda;
    }
    for (; otra.isValid(); otra = siguiente(otra)) {
        celda = otra;
        if (enUso(celda))
            break;
    }
    return celda;
}
