// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/ModeloPotencias.h"

#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

void ModeloPotencias::pon(const PotenciasDeElemento &potencias)
{
    beginResetModel();
    m_potencias = potencias;
    endResetModel();
}

int ModeloPotencias::rowCount(const QModelIndex &padre) const
{
    const auto cuantas = static_cast<int>(m_potencias.valores.size());
    return padre.isValid() || cuantas == 0 ? 0 : cuantas + 1;
}

int ModeloPotencias::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : NumColumnas;
}

QVariant ModeloPotencias::data(const QModelIndex &indice, int rol) const
{
    if (!indice.isValid())
        return {};
    const int k = indice.row();
    const bool repetida = k == m_potencias.valores.size();
    switch (rol) {
    case Qt::DisplayRole:
        if (indice.column() == Exponente)
            return formatoEntero(qint64(k));
        return formatoEntero(qint64(m_potencias.valores[repetida ? m_potencias.vuelta : k]));
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::ToolTipRole:
        return repetida ? Traduce(u"Se repite la potencia de exponente %1"_s)
                              .arg(formatoEntero(qint64(m_potencias.vuelta)))
                        : QString();
    default:
        return {};
    }
}

QVariant ModeloPotencias::headerData(int seccion, Qt::Orientation orientacion, int rol) const
{
    if (orientacion != Qt::Horizontal)
        return {};
    if (rol == Qt::DisplayRole)
        return Traduce(seccion == Exponente ? u"Exponente k"_s : u"Potencia aᵏ"_s);
    if (rol == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}
