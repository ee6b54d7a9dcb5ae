// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/windows/FormUnidadesCasillas.h"

#include <QAbstractItemModel>
#include <QEvent>
#include <QHeaderView>
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

/// What the largest element needs in the header and in a cell, whose margins are wider. The second
/// row, of what is times or plus the second element, holds all of them.
int FormUnidadesCasillas::anchoDelMayor() const
{
    const QAbstractItemView *vista = m_rejilla; // QTableView hides a function of its base
    const QAbstractItemModel *modelo = m_rejilla->model();
    const int ultima = modelo->columnCount() - 1;
    const int raya = 1;
    int ancho = m_rejilla->horizontalHeader()->sectionSizeHint(ultima);
    for (int c = 0; c <= ultima; ++c) {
        const QModelIndex celda = modelo->index(std::min(1, ultima), c);
        ancho = std::max(ancho, vista->sizeHintForIndex(celda).width() + raya);
    }
    return ancho;
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
