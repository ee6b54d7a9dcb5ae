// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/units/GrupoUnidades.h"

#include <QAbstractTableModel>
#include <optional>

/// The units of Z_n as the grid shows them, each with its inverse and its order; primitive roots
/// bear a mark.
class ModeloUnidades : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Columna { Elemento, Inverso, Orden, RaizPrimitiva, NumColumnas };

    /// The bare number of a cell, by which rows are sorted.
    static constexpr int RolValor = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    void pon(std::optional<GrupoUnidades> grupo);
    const std::optional<GrupoUnidades> &grupo() const { return m_grupo; }

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int rol = Qt::DisplayRole) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int rol) const override;

private:
    std::int32_t valor(const Unidad &unidad, int columna) const;

    std::optional<GrupoUnidades> m_grupo;
};
