// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"

#include <QAbstractListModel>

/// The steps of a tool as the rows of a list, of which the first ones are shown.
class ModeloDePasos : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// Shows the first of them, or the first `vistos`.
    void pon(const Pasos &pasos, qsizetype vistos = 1);
    /// Shows that many from the first on, all where there are fewer.
    void muestra(qsizetype vistos);

    const Pasos &pasos() const { return m_pasos; }
    Paso paso(int fila) const { return m_pasos.paso(fila); }
    bool todosALaVista() const { return m_vistos == m_pasos.cuantos(); }

    int rowCount(const QModelIndex &padre = {}) const override;
    /// The text of a step, and the words in which a screen reader says it.
    QVariant data(const QModelIndex &indice, int papel) const override;

private:
    Pasos m_pasos;
    qsizetype m_vistos = 0;
};
