// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/windows/FormCalcModelo.h"

#include "minical/ExplicacionDeCelda.h"
#include "minical/HojaDeCalculo.h"
#include "minical/windows/FormCalcAspecto.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Aspecto.h"

#include <QFont>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A tooltip holds a text of this many lines; a longer one would not fit any screen, and the zoom
/// shows it.
constexpr qsizetype CaracteresPorLinea = 120;
constexpr qsizetype MaximoDeLineas = 45;

/// The whole text in lines, because nothing else breaks a number.
QString enLineas(const QString &texto)
{
    QStringList lineas;
    for (qsizetype i = 0; i < texto.size(); i += CaracteresPorLinea)
        lineas << texto.sliced(i, std::min(CaracteresPorLinea, texto.size() - i));
    if (lineas.size() > MaximoDeLineas) {
        lineas.resize(MaximoDeLineas);
        lineas << Traduce(u"… (%1 caracteres: el zoom los muestra todos)"_s).arg(texto.size());
    }
    return lineas.join(u'\n');
}

QFont negrita()
{
    QFont letra;
    letra.setBold(true);
    return letra;
}

} // namespace

FormCalcModelo::FormCalcModelo(HojaDeCalculo &hoja, QObject *padre)
    : QAbstractTableModel(padre), m_hoja(hoja)
{
    m_hoja.alCambiar = [this](Celda celda) {
        const QModelIndex cambiado = indice(celda);
        Q_EMIT dataChanged(cambiado, cambiado);
    };
}

Celda FormCalcModelo::celda(const QModelIndex &indice) const
{
    return indice.isValid() ? Celda{indice.row() + 1, indice.column() + 1} : Celda();
}

QModelIndex FormCalcModelo::indice(Celda celda) const
{
    return index(celda.fila - 1, celda.columna - 1);
}

int FormCalcModelo::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : Celda::Filas - 1;
}

int FormCalcModelo::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : Celda::Columnas - 1;
}

QVariant FormCalcModelo::data(const QModelIndex &indice, int papel) const
{
    if (!checkIndex(indice, CheckIndexOption::IndexIsValid))
        return {};
    const Celda c = celda(indice);
    const QString &texto = m_hoja.texto(c);
    const bool falla = esError(texto);
    switch (papel) {
    case Qt::DisplayRole:
        return texto;
    case Qt::EditRole:
        return m_hoja.Expresiones(c.fila, c.columna);
    case Qt::ToolTipRole:
        return falla ? Traduce(u"Error: %1"_s).arg(motivoDeError(m_hoja, c)) : enLineas(texto);
    case Qt::AccessibleTextRole:
        return QString(NombreCelda(c) + u": "_s + texto);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    case Qt::ForegroundRole:
        return falla ? QVariant(Aspecto::error()) : QVariant();
    case Qt::FontRole:
        return falla ? QVariant(negrita()) : QVariant();
    case Qt::BackgroundRole:
        if (QColor fondo = Aspecto::error(); falla) {
            constexpr int tenue = 36;
            fondo.setAlpha(tenue);
            return fondo;
        }
        return {};
    default:
        return {};
    }
}

QVariant FormCalcModelo::headerData(int seccion, Qt::Orientation orientacion, int papel) const
{
    switch (papel) {
    case Qt::DisplayRole:
        return orientacion == Qt::Horizontal ? letraDeColumna(seccion + 1)
                                             : QString::number(seccion + 1);
    case Qt::FontRole:
        return negrita();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    default:
        return {};
    }
}

Qt::ItemFlags FormCalcModelo::flags(const QModelIndex &indice) const
{
    const Qt::ItemFlags ninguna;
    return indice.isValid() ? QAbstractTableModel::flags(indice) | Qt::ItemIsEditable : ninguna;
}

bool FormCalcModelo::setData(const QModelIndex &indice, const QVariant &valor, int papel)
{
    if (papel != Qt::EditRole || !checkIndex(indice, CheckIndexOption::IndexIsValid))
        return false;
    const QString texto = valor.toString();
    if (texto.size() > HojaDeCalculo::LongitudMaxima)
        return false;
    const RelojDeArena reloj;
    const Celda c = celda(indice);
    if (m_hoja.finDeEdicion(c, texto))
        Q_EMIT evaluada(c);
    return true;
}
