#pragma once

#include "lessons/primes/FactoresGrandes.h"

#include <QAbstractTableModel>

class ColFactores;

/// The table of factors: the prime and its exponent.
class ModeloFactores : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Columna { Factor, Exponente };

    using QAbstractTableModel::QAbstractTableModel;

    void pon(const ColFactores &factores);
    /// The last row is painted red unless the factorization is complete.
    void pon(const FactoresGrandes &factores);

    const QString &factor(int fila) const { return m_filas[fila].factor; }

    /// The factors as a product, "2³ · 3² · 5"; empty without factors.
    QString producto() const;

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel = Qt::DisplayRole) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

private:
    QList<FilaDeFactor> m_filas;
    bool m_completa = true;
};
