// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/grid/ColumnasRepartidas.h"

#include <QAbstractItemModel>
#include <QEvent>
#include <QHeaderView>
#include <QTableView>
#include <algorithm>
#include <numeric>

namespace {

/// What a number that is shortened in the middle shows at least.
constexpr int CifrasAcortadas = 14;

} // namespace

ColumnasRepartidas::ColumnasRepartidas(QTableView *rejilla) : QObject(rejilla), m_rejilla(rejilla)
{
    rejilla->horizontalHeader()->setStretchLastSection(false);
    rejilla->viewport()->installEventFilter(this);
    // From the event queue, once the view itself has taken the change in.
    const auto rehaz = [this] { reparte(); };
    const QAbstractItemModel *modelo = rejilla->model();
    connect(modelo, &QAbstractItemModel::dataChanged, this, rehaz, Qt::QueuedConnection);
    connect(modelo, &QAbstractItemModel::modelReset, this, rehaz, Qt::QueuedConnection);
    connect(modelo, &QAbstractItemModel::rowsInserted, this, rehaz, Qt::QueuedConnection);
    connect(modelo, &QAbstractItemModel::headerDataChanged, this, rehaz, Qt::QueuedConnection);
}

bool ColumnasRepartidas::eventFilter(QObject *objeto, QEvent *suceso)
{
    if (suceso->type() == QEvent::Resize || suceso->type() == QEvent::FontChange)
        reparte();
    return QObject::eventFilter(objeto, suceso);
}

/// Cuts the widest columns to one width with which all of them fit, where the grid shortens texts
/// in the middle and they are still worth reading.
void ColumnasRepartidas::acorta(QList<int> &anchos) const
{
    if (m_rejilla->textElideMode() != Qt::ElideMiddle)
        return;
    QList<int> ordenados = anchos;
    std::sort(ordenados.begin(), ordenados.end());
    const int minimo = m_rejilla->fontMetrics().horizontalAdvance(u'0') * CifrasAcortadas;
    int resto = m_rejilla->viewport()->width();
    for (qsizetype quedan = ordenados.size(); quedan > 0; --quedan) {
        const int ancho = ordenados.at(ordenados.size() - quedan);
        const int parte = std::max(resto / static_cast<int>(quedan), minimo);
        if (ancho > parte) {
            for (int &uno : anchos)
                uno = std::min(uno, parte);
            return;
        }
        resto -= ancho;
    }
}

void ColumnasRepartidas::reparte()
{
    QHeaderView *cabecera = m_rejilla->horizontalHeader();
    // QTableView hides this function of its base.
    const QAbstractItemView *vista = m_rejilla;
    const int todo = m_rejilla->viewport()->width();
    QList<int> anchos;
    for (int c = 0; c < cabecera->count(); ++c) {
        const int necesario = std::max(vista->sizeHintForColumn(c), cabecera->sectionSizeHint(c));
        anchos << std::min(necesario, todo);
    }
    acorta(anchos);
    int sobra = std::max(todo - std::accumulate(anchos.begin(), anchos.end(), 0), 0);
    for (int c = 0; c < anchos.size(); ++c) {
        const int parte = sobra / static_cast<int>(anchos.size() - c);
        sobra -= parte;
        cabecera->resizeSection(c, anchos[c] + parte);
    }
}
