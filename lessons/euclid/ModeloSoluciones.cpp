// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/ModeloSoluciones.h"

#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

#include <QSize>

using namespace Qt::Literals::StringLiterals;

ModeloSoluciones::ModeloSoluciones(QObject *padre)
    : QAbstractTableModel(padre),
      m_rotulos{Traduce(u"Sol. Nº"_s), Traduce(u"x billetes de importe a"_s),
                Traduce(u"y billetes de importe b"_s)}
{
}

void ModeloSoluciones::pon(const QList<SolucionesDiofanticas::Solucion> &lista)
{
    beginResetModel();
    m_lista = lista;
    endResetModel();
}

int ModeloSoluciones::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_lista.size());
}

int ModeloSoluciones::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : NumColumnas;
}

QVariant ModeloSoluciones::data(const QModelIndex &indice, int rol) const
{
    if (!indice.isValid())
        return {};
    if (rol == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    const auto &solucion = m_lista[indice.row()];
    const bool puntos = solucion.numero == 0;
    // The dots are cut off where a column is narrow; its width follows the numbers.
    if (rol == Qt::SizeHintRole && puntos)
        return QSize(0, 0);
    if (rol != Qt::DisplayRole)
        return {};
    if (puntos)
        return QString(43, u'·');
    const std::array valores{solucion.numero, solucion.x, solucion.y};
    return formatoEntero(qint64(valores[static_cast<std::size_t>(indice.column())]));
}

QVariant ModeloSoluciones::headerData(int seccion, Qt::Orientation orientacion, int rol) const
{
    if (orientacion != Qt::Horizontal)
        return {};
    if (rol == Qt::DisplayRole)
        return m_rotulos[static_cast<std::size_t>(seccion)];
    if (rol == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

bool ModeloSoluciones::setHeaderData(int seccion, Qt::Orientation orientacion,
                                     const QVariant &valor, int rol)
{
    if (orientacion != Qt::Horizontal || rol != Qt::EditRole)
        return false;
    m_rotulos[static_cast<std::size_t>(seccion)] = valor.toString();
    Q_EMIT headerDataChanged(orientacion, seccion, seccion);
    return true;
}
