// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/windows/ModeloEuclides.h"

#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

#include <QBrush>
#include <QFont>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A veil that shows on light and on dark grounds alike.
const QColor FondoDeEditables(0xf4, 0xa9, 0x42, 60);

QFont negrita()
{
    QFont letra;
    letra.setBold(true);
    return letra;
}

} // namespace

void ModeloEuclides::pon(const TablaEuclides &tabla)
{
    // Rows come and go at the end, without a reset: the editor of the first row, which asked for
    // this, and the current cell stay.
    const int ahora = std::max(1, static_cast<int>(tabla.divisiones().size()));
    if (ahora > m_filas) {
        beginInsertRows({}, m_filas, ahora - 1);
        m_filas = ahora;
        endInsertRows();
    } else if (ahora < m_filas) {
        beginRemoveRows({}, ahora, m_filas - 1);
        m_filas = ahora;
        endRemoveRows();
    }
    m_tabla = tabla;
    Q_EMIT dataChanged(index(0, 0), index(m_filas - 1, NumColumnas - 1));
}

int ModeloEuclides::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : m_filas;
}

int ModeloEuclides::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : NumColumnas;
}

QVariant ModeloEuclides::data(const QModelIndex &indice, int rol) const
{
    if (!indice.isValid())
        return {};
    switch (rol) {
    case Qt::DisplayRole:
        return texto(indice.row(), indice.column());
    case Qt::EditRole:
        return esEditable(indice) ? textoParaEditar(indice.column())
                                  : texto(indice.row(), indice.column());
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::BackgroundRole:
        return esEditable(indice) ? QVariant::fromValue(QBrush(FondoDeEditables)) : QVariant();
    case Qt::FontRole:
        return daElResultado(indice) ? negrita() : QVariant();
    case Qt::ToolTipRole:
        return esEditable(indice) ? Traduce(u"Número o expresión; se edita con F2 o doble clic"_s)
                                  : QString();
    default:
        return {};
    }
}

QVariant ModeloEuclides::headerData(int seccion, Qt::Orientation orientacion, int rol) const
{
    static const QStringList rotulos{u"Iteración"_s, u"Dividendo"_s, u"Divisor"_s, u"Cociente"_s,
                                     u"Resto"_s,     u"Coef. 1"_s,   u"Coef. 2"_s};
    if (orientacion != Qt::Horizontal)
        return {};
    if (rol == Qt::DisplayRole)
        return Traduce(rotulos.value(seccion));
    if (rol == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags ModeloEuclides::flags(const QModelIndex &indice) const
{
    const auto base = QAbstractTableModel::flags(indice);
    return esEditable(indice) ? base | Qt::ItemIsEditable : base;
}

bool ModeloEuclides::setData(const QModelIndex &indice, const QVariant &valor, int rol)
{
    if (rol != Qt::EditRole || !esEditable(indice))
        return false;
    m_textosTecleados[indice.column() == Dividendo ? 0 : 1] = valor.toString();
    Q_EMIT celdaEditada(indice.column(), valor.toString());
    return true;
}

bool ModeloEuclides::esEditable(const QModelIndex &indice)
{
    return indice.isValid() && indice.row() == 0 &&
           (indice.column() == Dividendo || indice.column() == Divisor);
}

/// Whether the line of the result takes the number from this cell. With reduced remainders the
/// coefficients prove nothing.
bool ModeloEuclides::daElResultado(const QModelIndex &indice) const
{
    if (m_tabla.filaDelMcd() != indice.row())
        return false;
    const bool coeficiente = indice.column() == Coef1 || indice.column() == Coef2;
    return indice.column() == Resto ||
           (coeficiente && m_tabla.algoritmo() == AlgoritmoEuclides::Estandar);
}

QString ModeloEuclides::texto(int fila, int columna) const
{
    // Without divisions only the two numbers stand there.
    if (fila >= m_tabla.divisiones().size()) {
        if (fila == 0 && columna == Dividendo)
            return formatoEntero(m_tabla.dividendo());
        return fila == 0 && columna == Divisor ? formatoEntero(m_tabla.divisor()) : QString();
    }
    const DivisionEuclides &d = m_tabla.divisiones()[fila];
    switch (columna) {
    case Iteracion:
        return formatoEntero(qint64(fila + 1));
    case Dividendo:
        return formatoEntero(d.dividendo);
    case Divisor:
        return formatoEntero(d.divisor);
    case Cociente:
        return formatoEntero(d.cociente);
    case Resto:
        return formatoEntero(d.resto);
    case Coef1:
        return formatoEntero(qint64(d.coef1));
    default:
        return formatoEntero(qint64(d.coef2));
    }
}

QString ModeloEuclides::textoParaEditar(int columna) const
{
    const QString &tecleado = m_textosTecleados[columna == Dividendo ? 0 : 1];
    if (!tecleado.isEmpty())
        return tecleado;
    return (columna == Dividendo ? m_tabla.dividendo() : m_tabla.divisor()).texto();
}
