// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

/// Draws the cells of the sheet and makes the field in which one is edited.
class FormCalcDelegado : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// By how many rows the edit that has ended moves on: one down after Enter, one up after Enter
    /// with the Shift key, none when it ended otherwise.
    static int salto(const QWidget *editor);

    QWidget *createEditor(QWidget *padre, const QStyleOptionViewItem &opcion,
                          const QModelIndex &indice) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &opcion,
                              const QModelIndex &indice) const override;
    void paint(QPainter *pintor, const QStyleOptionViewItem &opcion,
               const QModelIndex &indice) const override;
    QSize sizeHint(const QStyleOptionViewItem &opcion, const QModelIndex &indice) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *opcion, const QModelIndex &indice) const override;
    bool eventFilter(QObject *objeto, QEvent *suceso) override;
};
