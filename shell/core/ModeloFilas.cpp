// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/ModeloFilas.h"

namespace {

/// A grid may show less of a longer text than all; the pointer shows the whole.
constexpr qsizetype LetrasALaVista = 24;

} // namespace

ModeloFilas::ModeloFilas(const QStringList &cabeceras, QObject *padre)
    : QAbstractTableModel(padre), m_cabeceras(cabeceras)
{
}

int ModeloFilas::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_filas.size());
}

int ModeloFilas::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_cabeceras.size());
}

QVariant ModeloFilas::data(const QModelIndex &indice, int papel) const
{
    if (!indice.isValid())
        return {};
    if (papel == Qt::TextAlignmentRole) {
        const auto lado = m_deTexto.contains(indice.column()) ? Qt::AlignLeft : Qt::AlignRight;
        return {lado | Qt::AlignVCenter};
    }
    const QString texto = m_filas.at(indice.row()).value(indice.column());
    if (papel == Qt::ToolTipRole && texto.size() > LetrasALaVista)
        return texto;
    return papel == Qt::DisplayRole ? texto : QVariant();
}

QVariant ModeloFilas::headerData(int seccion, Qt::Orientation orientacion, int papel) const
{
    if (orientacion != Qt::Horizontal)
        return papel == Qt::DisplayRole ? QVariant(seccion + 1) : QVariant();
    if (papel == Qt::TextAlignmentRole) {
        const auto lado = m_deTexto.contains(seccion) ? Qt::AlignLeft : Qt::AlignRight;
        return {lado | Qt::AlignVCenter};
    }
    return papel == Qt::DisplayRole ? m_cabeceras.value(seccion) : QVariant();
}

void ModeloFilas::ponFilas(const QList<QStringList> &filas)
{
    beginResetModel();
    m_filas = filas;
    endResetModel();
}

void ModeloFilas::agrega(const QStringList &fila)
{
    const int ultima = rowCount();
    beginInsertRows({}, ultima, ultima);
    m_filas << fila;
    endInsertRows();
}
