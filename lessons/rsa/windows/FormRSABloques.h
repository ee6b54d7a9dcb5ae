// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

/// Paints the encrypted blocks of a grid of one column, wrapping numbers that are wider than it.
class FormRSABloques : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *pintor, const QStyleOptionViewItem &opcion,
               const QModelIndex &indice) const override;

    /// The height of a row in which a number of so many digits fits, in a column of that width.
    static int alto(const QFontMetrics &letra, qsizetype cifras, int ancho);
};
