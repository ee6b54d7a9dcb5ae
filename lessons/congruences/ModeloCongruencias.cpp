// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/congruences/ModeloCongruencias.h"

#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The columns as they were laid out: alignment of the header, header, and blanks for its width.
const QString FormatoDeColumnas =
    u"^n da resto                                   |^al dividirlo entre         "_s;

/// The digits of a number that is written as the grid shows it; any other text as it is.
QString sinSeparadores(const QString &texto)
{
    const QString separador = separadorDeMillares();
    const QRegularExpression agrupado(
        u"^\\s*[+-]?\\d{1,3}(%1\\d{3})+\\s*$"_s.arg(QRegularExpression::escape(separador)));
    return agrupado.match(texto).hasMatch() ? QString(texto).remove(separador) : texto;
}

} // namespace

ModeloCongruencias::ModeloCongruencias(QObject *padre) : QAbstractTableModel(padre)
{
    pon({});
}

void ModeloCongruencias::pon(const SistemaCongruencias &sistema)
{
    beginResetModel();
    m_sistema = sistema;
    m_sistema.resize(std::max<qsizetype>(sistema.size() + 1, FilasMinimas));
    endResetModel();
}

int ModeloCongruencias::primeraConDefecto() const
{
    for (int f = 0; f < m_sistema.size(); ++f) {
        if (m_sistema[f].cuenta() && !m_sistema[f].valida())
            return f;
    }
    return -1;
}

int ModeloCongruencias::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_sistema.size());
}

int ModeloCongruencias::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : NumColumnas;
}

bool ModeloCongruencias::tieneDefecto(const QModelIndex &indice) const
{
    const Congruencia &fila = m_sistema[indice.row()];
    return fila.cuenta() &&
           !(indice.column() == ColumnaDeRestos ? fila.restoValido() : fila.moduloValido());
}

QVariant ModeloCongruencias::data(const QModelIndex &indice, int rol) const
{
    if (!indice.isValid())
        return {};
    const Congruencia &fila = m_sistema[indice.row()];
    const QString &texto = indice.column() == ColumnaDeRestos ? fila.resto : fila.modulo;
    switch (rol) {
    case Qt::DisplayRole:
        return formatoEntero(texto.trimmed());
    case Qt::EditRole:
        return texto;
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case RolDefecto:
        return tieneDefecto(indice);
    case Qt::ToolTipRole:
        return fila.cuenta() ? fila.defecto() : QString();
    default:
        return {};
    }
}

QVariant ModeloCongruencias::headerData(int seccion, Qt::Orientation orientacion, int rol) const
{
    if (orientacion != Qt::Horizontal)
        return rol == Qt::DisplayRole ? QVariant(seccion + 1) : QVariant();
    if (rol == Qt::DisplayRole)
        return Traduce(FormatoDeColumnas.split(u'|').value(seccion).sliced(1).trimmed());
    return rol == Qt::TextAlignmentRole ? QVariant(Qt::AlignCenter) : QVariant();
}

Qt::ItemFlags ModeloCongruencias::flags(const QModelIndex &indice) const
{
    const auto base = QAbstractTableModel::flags(indice);
    return indice.isValid() ? base | Qt::ItemIsEditable : base;
}

bool ModeloCongruencias::setData(const QModelIndex &indice, const QVariant &valor, int rol)
{
    if (rol != Qt::EditRole || !indice.isValid())
        return false;
    Congruencia &fila = m_sistema[indice.row()];
    QString &celda = indice.column() == ColumnaDeRestos ? fila.resto : fila.modulo;
    const QString texto = sinSeparadores(valor.toString().left(LongitudMaxima));
    if (texto == celda)
        return true;
    celda = texto;
    // The marks of a row depend on both its cells.
    Q_EMIT dataChanged(index(indice.row(), 0), index(indice.row(), NumColumnas - 1));
    if (indice.row() == m_sistema.size() - 1 && !texto.trimmed().isEmpty()) {
        beginInsertRows({}, indice.row() + 1, indice.row() + 1);
        m_sistema << Congruencia();
        endInsertRows();
    }
    return true;
}
