// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/functions/Ack.h"

#include <QAbstractTableModel>
#include <QString>
#include <optional>

/// Shows the memory of Ackermann's function: m across, n down, empty where nothing was written, 0
/// where a call was given up. The memory grows while it is being filled; views hear of it by
/// `publica`.
class ModeloAck : public QAbstractTableModel
{
public:
    explicit ModeloAck(std::shared_ptr<const MemoriaAck> memoria, QObject *padre = nullptr);

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

    /// Tells the views what has grown and that values may have changed.
    void publica();

    /// Another memory, not smaller than the one before; nothing stands out any more.
    void pon(std::shared_ptr<const MemoriaAck> memoria);

    /// Marks the cell of a call in cyan, and gives its index; an invalid one when the grid has no
    /// such cell.
    QModelIndex destaca(Ack::Llamada llamada);

private:
    std::shared_ptr<const MemoriaAck> m_memoria;
    int m_filas;
    int m_columnas;
    std::optional<Ack::Llamada> m_destacada;
};
