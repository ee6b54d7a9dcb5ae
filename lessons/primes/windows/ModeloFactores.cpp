#include "lessons/primes/windows/ModeloFactores.h"

#include "lessons/primes/ColFactores.h"
#include "shell/core/ModGlobal.h"

#include <QColor>

using namespace Qt::Literals::StringLiterals;

namespace {

QString superindice(const QString &cifras)
{
    static const QString altas = u"⁰¹²³⁴⁵⁶⁷⁸⁹"_s;
    QString texto;
    for (const QChar cifra : cifras)
        texto += altas[cifra.digitValue()];
    return texto;
}

} // namespace

void ModeloFactores::pon(const ColFactores &factores)
{
    // Trial division meets the factors in ascending order.
    FactoresGrandes filas{{}, true};
    for (const clsFactorPrimo &factor : factores)
        filas.filas.append({factor.Primo().texto(), QString::number(factor.exponente())});
    pon(filas);
}

void ModeloFactores::pon(const FactoresGrandes &factores)
{
    beginResetModel();
    m_filas = factores.filas;
    m_completa = factores.completa;
    endResetModel();
}

QString ModeloFactores::producto() const
{
    QStringList potencias;
    for (const FilaDeFactor &fila : m_filas)
        potencias << (fila.exponente == u"1"_s ? fila.factor
                                               : fila.factor + superindice(fila.exponente));
    return potencias.join(u" · "_s);
}

int ModeloFactores::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_filas.size());
}

int ModeloFactores::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : 2;
}

QVariant ModeloFactores::data(const QModelIndex &indice, int papel) const
{
    const FilaDeFactor &fila = m_filas[indice.row()];
    const bool compuesto = !m_completa && indice.row() == m_filas.size() - 1;
    switch (papel) {
    case Qt::DisplayRole:
        return indice.column() == Factor ? fila.factor : fila.exponente;
    case Qt::TextAlignmentRole:
        return int(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        return compuesto ? QColor(Qt::red) : QVariant();
    case Qt::ToolTipRole:
        return compuesto ? Traduce(u"Compuesto que no se ha podido factorizar"_s) : QVariant();
    default:
        return {};
    }
}

QVariant ModeloFactores::headerData(int seccion, Qt::Orientation orientacion, int papel) const
{
    if (papel == Qt::TextAlignmentRole)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (papel != Qt::DisplayRole || orientacion != Qt::Horizontal)
        return {};
    return Traduce(seccion == Factor ? u"Factor"_s : u"Exponente"_s);
}
