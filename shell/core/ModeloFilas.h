// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QStringList>

/// A table of texts under fixed headers, for grids that are filled once or grow row by row.
/// Numbers, which most columns hold, stand on the right.
class ModeloFilas : public QAbstractTableModel
{
public:
    explicit ModeloFilas(const QStringList &cabeceras, QObject *padre = nullptr);

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

    /// The columns that hold words, which stand on the left.
    void ponColumnasDeTexto(const QList<int> &columnas) { m_deTexto = columnas; }

    const QList<QStringList> &filas() const { return m_filas; }
    void ponFilas(const QList<QStringList> &filas);
    void agrega(const QStringList &fila);

private:
    QStringList m_cabeceras;
    QList<int> m_deTexto;
    QList<QStringList> m_filas;
};
