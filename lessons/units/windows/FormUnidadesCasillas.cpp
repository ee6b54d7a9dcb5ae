// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/windows/FormUnidadesCasillas.h"

#include <QAbstractItemModel>
#include <QEvent>
#include <QHeaderView>
#include <QStyle>
#include <QTableView>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

FormUnidadesCasillas::FormUnidadesCasillas(QTableView *rejilla)
    : QObject(rejilla), m_rejilla(rejilla)
{
    for (QHeaderView *cabecera : {rejilla->horizontalHeader(), rejilla->verticalHeader()}) {
        cabecera->setMinimumSectionSize(1);
        cabecera->setStretchLastSection(false);
        cabecera->setSectionResizeMode(QHeaderView::Fixed);
    }
    rejilla->viewport()->installEventFilter(this);
    // From the event queue, once the view itself has taken the change in.
    connect(
        rejilla->model(), &QAbstractItemModel::modelReset, this, [this] { ajusta(); },
        Qt::QueuedConnection);
}

bool FormUnidadesCasillas::eventFilter(QObject *objeto, QEvent *suceso)
{
    if (suceso->type() == QEvent::Resize || suceso->type() == QEvent::FontChange)
        ajusta();
    return QObject::eventFilter(objeto, suceso);
}

/// What the largest element needs in the header and in a cell, whose margins are wider.
int FormUnidadesCasillas::anchoDelMayor() const
{
    const QHeaderView *cabecera = m_rejilla->horizontalHeader();
    const int ultima = cabecera->count() - 1;
    const QString mayor = m_rejilla->model()->headerData(ultima, Qt::Horizontal).toString();
    const int margen = m_rejilla->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
    const int raya = 1;
    return std::max(cabecera->sectionSizeHint(ultima),
                    m_rejilla->fontMetrics().horizontalAdvance(mayor) + 2 * margen + raya);
}

void FormUnidadesCasillas::ajusta()
{
    const int lados = m_rejilla->model()->rowCount();
    if (lados == 0)
        return;
    const QFontMetrics letra = m_rejilla->fontMetrics();
    const int menor = std::max(anchoDelMayor(), letra.height() + 4);
    const QSize sitio = m_rejilla->viewport()->size();
    const int lado = std::clamp(std::min(sitio.width(), sitio.height()) / lados, menor,
                                std::max(menor, 4 * letra.height()));
    for (QHeaderView *cabecera : {m_rejilla->horizontalHeader(), m_rejilla->verticalHeader()})
        cabecera->setDefaultSectionSize(lado);
}
