// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/euclid/EcuacionDiofantica.h"

#include <QAbstractTableModel>
#include <array>

/// The list of solutions as the grid shows it.
class ModeloSoluciones : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Columna { Numero, X, Y, NumColumnas };

    explicit ModeloSoluciones(QObject *padre = nullptr);

    void pon(const QList<SolucionesDiofanticas::Solucion> &lista);

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int rol = Qt::DisplayRole) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int rol) const override;
    bool setHeaderData(int seccion, Qt::Orientation orientacion, const QVariant &valor,
                       int rol = Qt::EditRole) override;

private:
    QList<SolucionesDiofanticas::Solucion> m_lista;
    std::array<QString, NumColumnas> m_rotulos;
};
