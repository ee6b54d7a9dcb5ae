// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/modular/SucesionModular.h"

#include <QAbstractTableModel>

/// The values of a sequence: n and f(n), a row each; no rows while there is no sequence. Those of
/// the first pair that comes back, at both of its places, are marked.
class ModeloValores : public QAbstractTableModel
{
public:
    enum Columna { N, Valor, NumColumnas };

    /// Whether a row is marked.
    static constexpr int PapelDeMarca = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

    void pon(const std::optional<SucesionModular> &sucesion);

    const std::optional<PeriodoModular> &periodo() const { return m_periodo; }

private:
    bool marcada(int n) const;

    std::optional<SucesionModular> m_sucesion;
    std::optional<PeriodoModular> m_periodo;
};
