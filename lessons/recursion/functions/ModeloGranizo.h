#pragma once

#include "lessons/recursion/functions/HistoriaGranizo.h"

#include <QAbstractTableModel>

/// The steps of a hailstone sequence and their values, a row each. The sequence grows while it
/// runs; views hear of it by `publica`.
class ModeloGranizo : public QAbstractTableModel
{
public:
    enum Columna { Paso, Valor, NumColumnas };

    explicit ModeloGranizo(const HistoriaGranizo &historia, QObject *padre = nullptr);

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

    /// Tells the views which steps there are now.
    void publica();

    /// Tells the views that another sequence begins: no rows until the next `publica`.
    void reinicia();

private:
    const HistoriaGranizo &m_historia;
    qint64 m_primero = 0;
    int m_filas = 0;
};
