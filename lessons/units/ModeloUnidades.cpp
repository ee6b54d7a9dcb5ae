// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/ModeloUnidades.h"

#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

void ModeloUnidades::pon(std::optional<GrupoUnidades> grupo)
{
    beginResetModel();
    m_grupo = std::move(grupo);
    endResetModel();
}

int ModeloUnidades::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() || !m_grupo ? 0 : m_grupo->fi();
}

int ModeloUnidades::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : NumColumnas;
}

std::int32_t ModeloUnidades::valor(const Unidad &unidad, int columna) const
{
    switch (columna) {
    case Elemento:
        return unidad.valor;
    case Inverso:
        return unidad.inverso;
    case Orden:
        return unidad.orden;
    default:
        return m_grupo->esRaizPrimitiva(unidad) ? 1 : 0;
    }
}

QVariant ModeloUnidades::data(const QModelIndex &indice, int rol) const
{
    if (!indice.isValid() || !m_grupo)
        return {};
    const Unidad &unidad = m_grupo->unidades()[indice.row()];
    const std::int32_t cifra = valor(unidad, indice.column());
    switch (rol) {
    case Qt::DisplayRole:
        if (indice.column() == RaizPrimitiva)
            return cifra != 0 ? Traduce(u"★ sí"_s) : QString();
        return formatoEntero(qint64(cifra));
    case RolValor:
        return cifra;
    case Qt::TextAlignmentRole:
        return indice.column() == RaizPrimitiva ? QVariant(Qt::AlignCenter)
                                                : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::ToolTipRole:
        return unidad.inverso == unidad.valor ? Traduce(u"Es su propio inverso"_s) : QString();
    default:
        return {};
    }
}

QVariant ModeloUnidades::headerData(int seccion, Qt::Orientation orientacion, int rol) const
{
    static const QStringList rotulos{u"Unidad"_s, u"Inverso"_s, u"Orden"_s, u"Primitiva"_s};
    if (orientacion != Qt::Horizontal)
        return {};
    if (rol == Qt::DisplayRole)
        return Traduce(rotulos.value(seccion));
    if (rol == Qt::ToolTipRole && seccion == RaizPrimitiva)
        return Traduce(u"Raíz primitiva: sus potencias son todas las unidades"_s);
    if (rol == Qt::TextAlignmentRole)
        return seccion == RaizPrimitiva ? QVariant(Qt::AlignCenter)
                                        : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}
