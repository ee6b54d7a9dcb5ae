// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/congruences/SistemaCongruencias.h"

#include <QAbstractTableModel>

/// A system of congruences as the grid shows it, with empty rows below to write more in.
class ModeloCongruencias : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Columna { ColumnaDeRestos, ColumnaDeModulos, NumColumnas };

    /// True for a cell that spoils its row.
    static constexpr int RolDefecto = Qt::UserRole;

    /// Rows that stand there even when they are empty.
    static constexpr int FilasMinimas = 4;

    /// The longest text that a cell takes, in characters: more than the largest number that the
    /// big-number service reads.
    static constexpr int LongitudMaxima = 25'000;

    explicit ModeloCongruencias(QObject *padre = nullptr);

    void pon(const SistemaCongruencias &sistema);
    const SistemaCongruencias &sistema() const { return m_sistema; }

    /// The first counting row that is not valid, counted from 0; -1 when there is none.
    int primeraConDefecto() const;

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int rol = Qt::DisplayRole) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int rol) const override;
    Qt::ItemFlags flags(const QModelIndex &indice) const override;
    /// Grows the grid when its last row is written in. Digits may come grouped in thousands, as the
    /// grid shows them.
    bool setData(const QModelIndex &indice, const QVariant &valor, int rol) override;

private:
    bool tieneDefecto(const QModelIndex &indice) const;

    SistemaCongruencias m_sistema;
};
