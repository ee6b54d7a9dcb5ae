// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/units/GrupoUnidades.h"

#include <QAbstractTableModel>

/// The powers of an element of Z_n as the grid shows them: a^0, a^1, … and, in the last row, the
/// first one that repeats.
class ModeloPotencias : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Columna { Exponente, Potencia, NumColumnas };

    using QAbstractTableModel::QAbstractTableModel;

    /// Without powers the grid is empty.
    void pon(const PotenciasDeElemento &potencias);

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int rol = Qt::DisplayRole) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int rol) const override;

private:
    PotenciasDeElemento m_potencias;
};
