// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/steps/ModeloDeHuecos.h"

#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Aspecto.h"

#include <QBrush>

using namespace Qt::Literals::StringLiterals;

namespace {

using Estado = TablaConHuecos::Estado;

} // namespace

void ModeloDeHuecos::pon(const TablaConHuecos &tabla)
{
    beginResetModel();
    m_tabla = tabla;
    endResetModel();
}

QModelIndex ModeloDeHuecos::primeraPendiente() const
{
    for (int fila = 0; fila < rowCount(); ++fila) {
        for (int columna = 0; columna < columnCount(); ++columna) {
            const Estado este = m_tabla.estado(fila, columna);
            if (este == Estado::Oculta || este == Estado::Fallada)
                return index(fila, columna);
        }
    }
    return {};
}

int ModeloDeHuecos::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_tabla.filas());
}

int ModeloDeHuecos::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_tabla.cabecera().size());
}

Estado ModeloDeHuecos::estado(const QModelIndex &indice) const
{
    return m_tabla.estado(indice.row(), indice.column());
}

/// An answer as it was typed; what stands there rightly, grouped.
QString ModeloDeHuecos::rotulo(const QModelIndex &indice) const
{
    const QString texto = m_tabla.texto(indice.row(), indice.column());
    switch (estado(indice)) {
    case Estado::ALaVista:
        return formatoEntero(texto);
    case Estado::Acertada:
        return u"✓ "_s + formatoEntero(texto);
    case Estado::Fallada:
        return u"✗ "_s + texto;
    case Estado::Oculta:
        return texto + u'?';
    }
    return {};
}

QVariant ModeloDeHuecos::fondo(const QModelIndex &indice) const
{
    if (estado(indice) == Estado::ALaVista)
        return {};
    QColor color = estado(indice) == Estado::Acertada  ? Aspecto::exito()
                   : estado(indice) == Estado::Fallada ? Aspecto::error()
                                                       : Aspecto::acento();
    color.setAlphaF(0.22F);
    return QBrush(color);
}

QVariant ModeloDeHuecos::data(const QModelIndex &indice, int papel) const
{
    if (!indice.isValid())
        return {};
    switch (papel) {
    case Qt::DisplayRole:
        return rotulo(indice);
    case Qt::EditRole:
        return m_tabla.texto(indice.row(), indice.column());
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::BackgroundRole:
        return fondo(indice);
    case Qt::AccessibleTextRole:
        return estado(indice) == Estado::Oculta ? Traduce(u"casilla por rellenar"_s)
                                                : rotulo(indice);
    default:
        return {};
    }
}

QVariant ModeloDeHuecos::headerData(int seccion, Qt::Orientation orientacion, int papel) const
{
    if (orientacion == Qt::Horizontal && papel == Qt::DisplayRole)
        return m_tabla.cabecera().value(seccion);
    if (orientacion == Qt::Horizontal && papel == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags ModeloDeHuecos::flags(const QModelIndex &indice) const
{
    const auto base = QAbstractTableModel::flags(indice);
    if (!indice.isValid())
        return base;
    const bool sePuede = estado(indice) == Estado::Oculta || estado(indice) == Estado::Fallada;
    return sePuede ? base | Qt::ItemIsEditable : base;
}

bool ModeloDeHuecos::setData(const QModelIndex &indice, const QVariant &valor, int papel)
{
    if (papel != Qt::EditRole || !flags(indice).testFlag(Qt::ItemIsEditable))
        return false;
    m_tabla.responde(indice.row(), indice.column(), valor.toString());
    Q_EMIT dataChanged(indice, indice);
    Q_EMIT respondida(indice);
    return true;
}
