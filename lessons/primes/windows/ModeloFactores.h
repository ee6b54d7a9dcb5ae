// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/primes/TablaDeFactores.h"

#include <QAbstractTableModel>

/// The table of factors: the prime and its exponent; a composite that could not be split is red.
class ModeloFactores : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Columna { Factor, Exponente };

    using QAbstractTableModel::QAbstractTableModel;

    void pon(const TablaDeFactores &tabla);
    const TablaDeFactores &tabla() const { return m_tabla; }

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel = Qt::DisplayRole) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

private:
    TablaDeFactores m_tabla;
};
