// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/modular/ModeloValores.h"

#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QVariant alineacion(int columna)
{
    return {(columna == ModeloValores::N ? Qt::AlignHCenter : Qt::AlignRight) | Qt::AlignVCenter};
}

} // namespace

int ModeloValores::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() || !m_sucesion ? 0 : SucesionModular::NumValores;
}

int ModeloValores::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : NumColumnas;
}

QVariant ModeloValores::data(const QModelIndex &indice, int papel) const
{
    const int n = indice.row() + 1;
    if (papel == Qt::TextAlignmentRole)
        return alineacion(indice.column());
    if (papel == PapelDeMarca)
        return marcada(n);
    if (papel == Qt::AccessibleDescriptionRole)
        return marcada(n) ? Traduce(u"De la pareja que se repite"_s) : QString();
    if (papel != Qt::DisplayRole)
        return {};
    return formatoEntero(qint64{indice.column() == N ? n : m_sucesion->valor(n)});
}

QVariant ModeloValores::headerData(int seccion, Qt::Orientation orientacion, int papel) const
{
    if (orientacion == Qt::Horizontal && papel == Qt::DisplayRole)
        return seccion == N ? u"n"_s : u"f(n)"_s;
    return papel == Qt::TextAlignmentRole ? alineacion(seccion) : QVariant();
}

void ModeloValores::pon(const std::optional<SucesionModular> &sucesion)
{
    beginResetModel();
    m_sucesion = sucesion;
    m_periodo = sucesion && sucesion->modulo() > 0 ? sucesion->periodo() : std::nullopt;
    endResetModel();
}

bool ModeloValores::marcada(int n) const
{
    if (!m_periodo)
        return false;
    const int desde = n - m_periodo->inicio;
    return desde == 0 || desde == 1 || desde == m_periodo->longitud ||
           desde == m_periodo->longitud + 1;
}
