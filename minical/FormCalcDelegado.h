#pragma once

#include <QStyledItemDelegate>

/// Draws the cells of the sheet and makes the field in which one is edited.
class FormCalcDelegado : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Where an edit that was ended by Enter leads: up with the Shift key, else down.
    static bool haciaArriba(const QWidget *editor);

    QWidget *createEditor(QWidget *padre, const QStyleOptionViewItem &opcion,
                          const QModelIndex &indice) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &opcion,
                              const QModelIndex &indice) const override;
    QSize sizeHint(const QStyleOptionViewItem &opcion, const QModelIndex &indice) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *opcion, const QModelIndex &indice) const override;
    bool eventFilter(QObject *objeto, QEvent *suceso) override;
};
