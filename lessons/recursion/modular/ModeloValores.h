// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/modular/SucesionModular.h"

#include <QAbstractTableModel>

/// The values of a sequence: n and f(n), a row each; no rows while there is no sequence.
class ModeloValores : public QAbstractTableModel
{
public:
    enum Columna { N, Valor, NumColumnas };

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

    void pon(const std::optional<SucesionModular> &sucesion);

private:
    std::optional<SucesionModular> m_sucesion;
};
