// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/ModeloGranizo.h"

#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

int ModeloGranizo::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : m_filas;
}

int ModeloGranizo::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : NumColumnas;
}

QVariant ModeloGranizo::data(const QModelIndex &indice, int papel) const
{
    if (papel == Qt::TextAlignmentRole)
        return {Qt::AlignRight | Qt::AlignVCenter};
    if (papel != Qt::DisplayRole && papel != Qt::ToolTipRole)
        return {};
    // Between two calls of `publica` the oldest steps may have been forgotten.
    const qint64 paso = std::max(m_primero + indice.row(), m_historia->primero());
    if (indice.column() == Paso)
        return QString::number(paso);
    const QString valor = m_historia->valor(paso);
    return papel == Qt::DisplayRole
               ? valor
               : Traduce(u"Cifras: %1"_s).arg(formatoEntero(qint64{cifrasDe(valor)}));
}

QVariant ModeloGranizo::headerData(int seccion, Qt::Orientation orientacion, int papel) const
{
    if (orientacion == Qt::Horizontal && papel == Qt::DisplayRole)
        return seccion == Paso ? u"n"_s : u"h(n)"_s;
    if (papel == Qt::TextAlignmentRole)
        return {Qt::AlignRight | Qt::AlignVCenter};
    return {};
}

void ModeloGranizo::publica()
{
    const auto filas = static_cast<int>(m_historia->ultimo() - m_historia->primero() + 1);
    if (filas > m_filas) {
        beginInsertRows({}, m_filas, filas - 1);
        m_filas = filas;
        endInsertRows();
    }
    if (m_primero != m_historia->primero()) {
        m_primero = m_historia->primero();
        Q_EMIT dataChanged(index(0, 0), index(m_filas - 1, NumColumnas - 1));
    }
}

void ModeloGranizo::pon(std::shared_ptr<const HistoriaGranizo> historia)
{
    beginResetModel();
    m_historia = std::move(historia);
    m_filas = 0;
    m_primero = 0;
    endResetModel();
}
