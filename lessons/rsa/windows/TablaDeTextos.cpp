// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/windows/TablaDeTextos.h"

namespace {

Qt::Alignment alineacion(QChar signo)
{
    if (signo == u'^')
        return Qt::AlignCenter;
    return (signo == u'>' ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

} // namespace

TablaDeTextos::TablaDeTextos(const QString &encabezados, QObject *padre)
    : QAbstractTableModel(padre)
{
    for (const QString &columna : encabezados.split(u'|')) {
        m_alineaciones << alineacion(columna.front());
        m_encabezados << columna.sliced(1);
    }
}

void TablaDeTextos::ponFilas(const QList<QStringList> &filas)
{
    beginResetModel();
    m_filas = filas;
    endResetModel();
}

int TablaDeTextos::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_filas.size());
}

int TablaDeTextos::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_encabezados.size());
}

QVariant TablaDeTextos::data(const QModelIndex &indice, int papel) const
{
    if (!indice.isValid())
        return {};
    if (papel == Qt::DisplayRole)
        return m_filas[indice.row()].value(indice.column());
    if (papel == Qt::TextAlignmentRole)
        return QVariant::fromValue(m_alineaciones[indice.column()]);
    return {};
}

QVariant TablaDeTextos::headerData(int seccion, Qt::Orientation sentido, int papel) const
{
    if (sentido != Qt::Horizontal || seccion < 0 || seccion >= m_encabezados.size())
        return {};
    if (papel == Qt::DisplayRole)
        return m_encabezados[seccion];
    if (papel == Qt::TextAlignmentRole)
        return QVariant::fromValue(m_alineaciones[seccion]);
    return {};
}
