// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/steps/ModeloDePasos.h"

#include "shell/core/steps/CopiaDePasos.h"

#include <algorithm>

void ModeloDePasos::pon(const Pasos &pasos, qsizetype vistos)
{
    beginResetModel();
    m_pasos = pasos;
    m_vistos = std::min(vistos, pasos.cuantos());
    endResetModel();
}

void ModeloDePasos::muestra(qsizetype vistos)
{
    const qsizetype nuevos = std::clamp(vistos, qsizetype{0}, m_pasos.cuantos());
    if (nuevos > m_vistos) {
        beginInsertRows({}, static_cast<int>(m_vistos), static_cast<int>(nuevos) - 1);
        m_vistos = nuevos;
        endInsertRows();
    } else if (nuevos < m_vistos) {
        beginRemoveRows({}, static_cast<int>(nuevos), static_cast<int>(m_vistos) - 1);
        m_vistos = nuevos;
        endRemoveRows();
    }
}

int ModeloDePasos::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_vistos);
}

QVariant ModeloDePasos::data(const QModelIndex &indice, int papel) const
{
    if (!indice.isValid())
        return {};
    if (papel == Qt::DisplayRole)
        return pasoComo(FormaDePasos::Texto, paso(indice.row()), indice.row());
    if (papel == Qt::AccessibleTextRole)
        return pasoComoPalabras(paso(indice.row()));
    return {};
}
