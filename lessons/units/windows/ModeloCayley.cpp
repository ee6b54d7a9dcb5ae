// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/windows/ModeloCayley.h"

using namespace Qt::Literals::StringLiterals;

void ModeloCayley::pon(const TablaCayley &tabla)
{
    beginResetModel();
    m_tabla = tabla;
    endResetModel();
}

void ModeloCayley::ponOscuro(bool oscuro)
{
    m_oscuro = oscuro;
    if (!m_tabla.elementos().isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int ModeloCayley::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_tabla.elementos().size());
}

int ModeloCayley::columnCount(const QModelIndex &padre) const
{
    return rowCount(padre);
}

/// Hues go round with the values; the lightness stays where the ink of the theme reads well.
QColor ModeloCayley::fondo(std::int32_t valor) const
{
    if (valor == m_tabla.neutro())
        return m_oscuro ? 0xf2a541 : 0x1f6f8b;
    const int tono = valor * 360 / m_tabla.modulo();
    return m_oscuro ? QColor::fromHsl(tono, 110, 62) : QColor::fromHsl(tono, 150, 215);
}

QColor ModeloCayley::tinta(std::int32_t valor) const
{
    const bool clara = m_oscuro != (valor == m_tabla.neutro());
    return clara ? 0xffffff : 0x172226;
}

QVariant ModeloCayley::data(const QModelIndex &indice, int rol) const
{
    if (!indice.isValid())
        return {};
    const int f = indice.row(), c = indice.column();
    switch (rol) {
    case Qt::DisplayRole:
        return QString::number(m_tabla.resultado(f, c));
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignCenter);
    case Qt::BackgroundRole:
        return fondo(m_tabla.resultado(f, c));
    case Qt::ForegroundRole:
        return tinta(m_tabla.resultado(f, c));
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return m_tabla.explicacion(f, c);
    default:
        return {};
    }
}

QVariant ModeloCayley::headerData(int seccion, Qt::Orientation, int rol) const
{
    if (rol == Qt::DisplayRole && seccion < m_tabla.elementos().size())
        return QString::number(m_tabla.elementos()[seccion]);
    return rol == Qt::TextAlignmentRole ? QVariant(Qt::AlignCenter) : QVariant();
}
