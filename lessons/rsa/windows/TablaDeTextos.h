// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QStringList>

/// Rows of texts for a grid. The headers come as one line, a column between "|" signs, each with
/// its alignment before it: "<" left, "^" centre, ">" right.
class TablaDeTextos : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit TablaDeTextos(const QString &encabezados, QObject *padre = nullptr);

    void ponFilas(const QList<QStringList> &filas);
    const QList<QStringList> &filas() const { return m_filas; }

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel = Qt::DisplayRole) const override;
    QVariant headerData(int seccion, Qt::Orientation sentido,
                        int papel = Qt::DisplayRole) const override;

private:
    QStringList m_encabezados;
    QList<Qt::Alignment> m_alineaciones;
    QList<QStringList> m_filas;
};
