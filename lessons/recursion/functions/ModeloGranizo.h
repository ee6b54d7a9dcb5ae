// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/functions/Granizo.h"

#include <QAbstractTableModel>
#include <memory>

/// The steps of a hailstone sequence and their values, a row each. The sequence grows while it
/// runs; views hear of it by `publica`.
class ModeloGranizo : public QAbstractTableModel
{
public:
    enum Columna { Paso, Valor, NumColumnas };

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

    /// Tells the views which steps there are now.
    void publica();

    /// Another sequence: no rows until the next `publica`.
    void pon(std::shared_ptr<const HistoriaGranizo> historia);

private:
    std::shared_ptr<const HistoriaGranizo> m_historia = std::make_shared<HistoriaGranizo>();
    qint64 m_primero = 0;
    int m_filas = 0;
};
