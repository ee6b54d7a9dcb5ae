// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/euclid/TablaEuclides.h"

#include <QAbstractTableModel>
#include <array>

/// The table of Euclid's algorithm as the grid shows it. Its first row always stands, because the
/// two numbers are typed there; a cell that is edited again starts from the text as it was typed.
class ModeloEuclides : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Columna { Iteracion, Dividendo, Divisor, Cociente, Resto, Coef1, Coef2, NumColumnas };

    using QAbstractTableModel::QAbstractTableModel;

    void pon(const TablaEuclides &tabla);
    const TablaEuclides &tabla() const { return m_tabla; }

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int rol = Qt::DisplayRole) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int rol) const override;
    Qt::ItemFlags flags(const QModelIndex &indice) const override;
    bool setData(const QModelIndex &indice, const QVariant &valor, int rol) override;

Q_SIGNALS:
    /// The text of an editable cell was typed. What it means is not decided here.
    void celdaEditada(int columna, const QString &texto);

private:
    static bool esEditable(const QModelIndex &indice);
    bool daElResultado(const QModelIndex &indice) const;
    QString texto(int fila, int columna) const;
    QString textoParaEditar(int columna) const;

    TablaEuclides m_tabla;
    int m_filas = 1;
    std::array<QString, 2> m_textosTecleados;
};
