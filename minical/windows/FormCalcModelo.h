// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/Celda.h"

#include <QAbstractTableModel>

class HojaDeCalculo;

/// The data cells of a sheet for its grid, headers left out: row 0 and column 0 of the model are
/// A1. What is written into it is an edit that has ended.
class FormCalcModelo : public QAbstractTableModel
{
    Q_OBJECT

public:
    FormCalcModelo(HojaDeCalculo &hoja, QObject *padre);

    Celda celda(const QModelIndex &indice) const;
    QModelIndex indice(Celda celda) const;

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;
    Qt::ItemFlags flags(const QModelIndex &indice) const override;
    bool setData(const QModelIndex &indice, const QVariant &valor, int papel) override;

Q_SIGNALS:
    /// The edit of a cell has been evaluated.
    void evaluada(Celda celda);

private:
    HojaDeCalculo &m_hoja;
};
