// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/windows/ModeloFactores.h"

#include "shell/core/ModGlobal.h"

#include <QColor>

using namespace Qt::Literals::StringLiterals;

void ModeloFactores::pon(const TablaDeFactores &tabla)
{
    beginResetModel();
    m_tabla = tabla;
    endResetModel();
}

int ModeloFactores::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_tabla.filas.size());
}

int ModeloFactores::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : 2;
}

QVariant ModeloFactores::data(const QModelIndex &indice, int papel) const
{
    const FilaDeFactor &fila = m_tabla.filas[indice.row()];
    switch (papel) {
    case Qt::DisplayRole:
        return indice.column() == Factor ? fila.factor : fila.exponente;
    case Qt::TextAlignmentRole:
        return int(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        return fila.primo ? QVariant() : QColor(Qt::red);
    case Qt::ToolTipRole:
        return fila.hallazgo.isEmpty() ? QVariant() : fila.hallazgo;
    default:
        return {};
    }
}

QVariant ModeloFactores::headerData(int seccion, Qt::Orientation orientacion, int papel) const
{
    if (papel == Qt::TextAlignmentRole)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (papel != Qt::DisplayRole || orientacion != Qt::Horizontal)
        return {};
    return Traduce(seccion == Factor ? u"Factor"_s : u"Exponente"_s);
}
