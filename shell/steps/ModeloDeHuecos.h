// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/TablaConHuecos.h"

#include <QAbstractTableModel>

/// A table with hidden cells as the grid shows it: those that wait for an answer stand on a veil,
/// those that were answered bear a mark and a colour.
class ModeloDeHuecos : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void pon(const TablaConHuecos &tabla);
    const TablaConHuecos &tabla() const { return m_tabla; }

    /// Changes which cells are hidden.
    template <typename Cambio>
    void cambia(Cambio cambio)
    {
        cambio(m_tabla);
        if (rowCount() > 0)
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }

    /// The first cell that is still to be filled in rightly; not valid when there is none.
    QModelIndex primeraPendiente() const;

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel = Qt::DisplayRole) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;
    Qt::ItemFlags flags(const QModelIndex &indice) const override;
    bool setData(const QModelIndex &indice, const QVariant &valor, int papel) override;

Q_SIGNALS:
    /// An answer was given and judged.
    void respondida(const QModelIndex &celda);

private:
    TablaConHuecos::Estado estado(const QModelIndex &indice) const;
    QString rotulo(const QModelIndex &indice) const;
    QVariant fondo(const QModelIndex &indice) const;

    TablaConHuecos m_tabla;
};
