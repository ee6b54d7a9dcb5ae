// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/grid/ColumnasRepartidas.h"

#include <QAbstractItemModel>
#include <QEvent>
#include <QHeaderView>
#include <QTableView>
#include <algorithm>

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

void ColumnasRepartidas::reparte()
{
    QHeaderView *cabecera = m_rejilla->horizontalHeader();
    // QTableView hides this function of its base.
    const QAbstractItemView *vista = m_rejilla;
    const int todo = m_rejilla->viewport()->width();
    int sobra = todo;
    QList<int> anchos;
    for (int c = 0; c < cabecera->count(); ++c) {
        const int necesario = std::max(vista->sizeHintForColumn(c), cabecera->sectionSizeHint(c));
        anchos << std::min(necesario, todo);
        sobra -= anchos.constLast();
    }
    sobra = std::max(sobra, 0);
    for (int c = 0; c < anchos.size(); ++c) {
        const int parte = sobra / static_cast<int>(anchos.size() - c);
        sobra -= parte;
        cabecera->resizeSection(c, anchos[c] + parte);
    }
}
