// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <cstdint>
#include <vector>

/// The list of primes as a table of four columns, filled row by row. The numbers stay numbers until
/// a cell is looked at, so that millions of them cost no more than their list.
class ModeloPrimos : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int Columnas = 4;

    using QAbstractTableModel::QAbstractTableModel;

    void pon(std::vector<std::uint32_t> primos);
    const std::vector<std::uint32_t> &primos() const { return m_primos; }

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel = Qt::DisplayRole) const override;

private:
    std::vector<std::uint32_t> m_primos;
};
