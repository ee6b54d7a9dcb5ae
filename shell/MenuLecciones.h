#pragma once

#include "shell/Leccion.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>

/// The rows of the lesson menu. Each has its highlight style, switched on and off by the window.
class MenuLecciones : public QAbstractListModel
{
public:
    static constexpr int PapelResaltado = Qt::UserRole;

    explicit MenuLecciones(const QList<Leccion> &lecciones, QObject *padre = nullptr);

    int rowCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel) const override;
    Qt::ItemFlags flags(const QModelIndex &indice) const override;

    void ponResaltado(int fila, bool resaltado);

private:
    QList<Leccion> m_lecciones;
    QList<bool> m_resaltadas;
};

/// Paints a row of the menu: picture, caption, and a rounded ground where it is highlighted.
class PintorDeMenu : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *pintor, const QStyleOptionViewItem &opcion,
               const QModelIndex &indice) const override;
    QSize sizeHint(const QStyleOptionViewItem &opcion, const QModelIndex &indice) const override;
};
