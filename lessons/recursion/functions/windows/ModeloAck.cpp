// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/windows/ModeloAck.h"

#include "shell/look/Aspecto.h"

#include <QBrush>

using namespace Qt::Literals::StringLiterals;

ModeloAck::ModeloAck(std::shared_ptr<const MemoriaAck> memoria, QObject *padre)
    : QAbstractTableModel(padre),
      m_memoria(std::move(memoria)),
      m_filas(m_memoria->filas()),
      m_columnas(m_memoria->columnas())
{
}

int ModeloAck::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : m_filas;
}

int ModeloAck::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : m_columnas;
}

QVariant ModeloAck::data(const QModelIndex &indice, int papel) const
{
    const int m = indice.column();
    const int n = indice.row();
    const bool escrita = m_memoria->escrita(m, n);
    const std::int32_t valor = m_memoria->lee(m, n);
    const bool destacada = m_destacada && m_destacada->m == m && m_destacada->n == n;
    switch (papel) {
    case Qt::DisplayRole:
        return escrita ? QString::number(valor) : QVariant();
    case Qt::ToolTipRole:
        return escrita ? textoDeValor({m, n}, valor) : QVariant();
    case Qt::TextAlignmentRole:
        return {Qt::AlignRight | Qt::AlignVCenter};
    case Qt::BackgroundRole:
        return destacada ? QBrush(QColor(0, 255, 255)) : QVariant();
    case Qt::ForegroundRole:
        // Cyan is bright in either theme, so its text is dark in both.
        if (destacada)
            return QBrush(Qt::black);
        return valor == 0 ? QBrush(Aspecto::atenuado()) : QVariant();
    default:
        return {};
    }
}

QVariant ModeloAck::headerData(int seccion, Qt::Orientation, int papel) const
{
    return papel == Qt::DisplayRole ? QVariant(seccion) : QVariant();
}

void ModeloAck::publica()
{
    if (m_memoria->columnas() > m_columnas) {
        beginInsertColumns({}, m_columnas, m_memoria->columnas() - 1);
        m_columnas = m_memoria->columnas();
        endInsertColumns();
    }
    if (m_memoria->filas() > m_filas) {
        beginInsertRows({}, m_filas, m_memoria->filas() - 1);
        m_filas = m_memoria->filas();
        endInsertRows();
    }
    Q_EMIT dataChanged(index(0, 0), index(m_filas - 1, m_columnas - 1));
}

void ModeloAck::pon(std::shared_ptr<const MemoriaAck> memoria)
{
    m_memoria = std::move(memoria);
    m_destacada.reset();
    publica();
}

QModelIndex ModeloAck::destaca(Ack::Llamada llamada)
{
    const QModelIndex celda = index(llamada.n, llamada.m);
    if (celda.isValid()) {
        m_destacada = llamada;
        Q_EMIT dataChanged(celda, celda);
    }
    return celda;
}
