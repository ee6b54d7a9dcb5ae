// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/windows/FormRSABloques.h"

#include <QApplication>
#include <QPainter>
#include <QTextOption>
#include <algorithm>

namespace {

constexpr int Borde = 6;

} // namespace

void FormRSABloques::paint(QPainter *pintor, const QStyleOptionViewItem &opcion,
                           const QModelIndex &indice) const
{
    QStyleOptionViewItem celda = opcion;
    initStyleOption(&celda, indice);
    const QString numero = std::exchange(celda.text, QString());
    const QStyle *estilo = celda.widget ? celda.widget->style() : QApplication::style();
    estilo->drawControl(QStyle::CE_ItemViewItem, &celda, pintor, celda.widget);

    const bool elegida = celda.state & QStyle::State_Selected;
    QTextOption forma(Qt::AlignCenter);
    forma.setWrapMode(QTextOption::WrapAnywhere);
    pintor->setPen(celda.palette.color(elegida ? QPalette::HighlightedText : QPalette::Text));
    pintor->setFont(celda.font);
    pintor->drawText(QRectF(celda.rect.adjusted(Borde, 0, -Borde, 0)), numero, forma);
}

int FormRSABloques::alto(const QFontMetrics &letra, qsizetype cifras, int ancho)
{
    const int caben = std::max(1, (ancho - 2 * Borde) / letra.horizontalAdvance(u'0'));
    const int lineas = static_cast<int>((cifras + caben - 1) / caben);
    return std::max(1, lineas) * letra.lineSpacing() + 2 * Borde;
}
