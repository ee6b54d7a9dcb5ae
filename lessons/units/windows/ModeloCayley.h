// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/units/TablaCayley.h"

#include <QAbstractTableModel>
#include <QColor>

/// A Cayley table as the grid shows it: each cell on the colour of its value so that the eye finds
/// the pattern, and the neutral element on a colour of its own.
class ModeloCayley : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void pon(const TablaCayley &tabla);
    const TablaCayley &tabla() const { return m_tabla; }

    /// Chooses the colours for a dark ground.
    void ponOscuro(bool oscuro);

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int rol = Qt::DisplayRole) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int rol) const override;

private:
    QColor fondo(std::int32_t valor) const;
    QColor tinta(std::int32_t valor) const;

    TablaCayley m_tabla;
    bool m_oscuro = false;
};
