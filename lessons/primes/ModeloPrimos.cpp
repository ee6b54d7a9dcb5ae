// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/ModeloPrimos.h"

#include "shell/core/Formatos.h"

void ModeloPrimos::pon(std::vector<std::uint32_t> primos)
{
    beginResetModel();
    m_primos = std::move(primos);
    endResetModel();
}

int ModeloPrimos::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>((m_primos.size() + Columnas - 1) / Columnas);
}

int ModeloPrimos::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : Columnas;
}

QVariant ModeloPrimos::data(const QModelIndex &indice, int papel) const
{
    if (papel == Qt::TextAlignmentRole)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    const auto lugar = static_cast<std::size_t>(indice.row()) * Columnas +
                       static_cast<std::size_t>(indice.column());
    if (papel != Qt::DisplayRole || lugar >= m_primos.size())
        return {};
    return formatoEntero(qint64(m_primos[lugar]));
}
