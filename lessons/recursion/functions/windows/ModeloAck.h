#pragma once

#include "lessons/recursion/functions/Ack.h"

#include <QAbstractTableModel>
#include <QString>
#include <optional>

/// A call as it is written: "Ack(2, 3)".
QString textoDeLlamada(Ack::Llamada llamada);
/// A call and its value: "Ack(2, 3) = 9"; of one that was given up, with the value 0, that it is
/// unfinished.
QString textoDeValor(Ack::Llamada llamada, std::int32_t valor);

/// Shows the memory of Ackermann's function: m across, n down, empty where nothing was written, 0
/// where a call was given up. The memory grows while it is being filled; views hear of it by
/// `publica`.
class ModeloAck : public QAbstractTableModel
{
public:
    explicit ModeloAck(const MemoriaAck &memoria, QObject *padre = nullptr);

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

    /// Tells the views what has grown and that values may have changed.
    void publica();

    /// Tells the views that the memory was emptied; nothing stands out any more.
    void reinicia();

    /// Marks the cell of a call in cyan, and gives its index; an invalid one when the grid has no
    /// such cell.
    QModelIndex destaca(Ack::Llamada llamada);

private:
    const MemoriaAck &m_memoria;
    int m_filas;
    int m_columnas;
    std::optional<Ack::Llamada> m_destacada;
};
