// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/Leccion.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>

/// The lessons, as the rows of the menu and as the cards of the welcome. Each row has its highlight
/// style, switched on and off by the window.
class MenuLecciones : public QAbstractListModel
{
public:
    static constexpr int PapelResaltado = Qt::UserRole;
    /// What the lesson teaches, in a line.
    static constexpr int PapelDescripcion = Qt::AccessibleDescriptionRole;

    explicit MenuLecciones(const QList<Leccion> &lecciones, QObject *padre = nullptr);

    int rowCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel) const override;
    Qt::ItemFlags flags(const QModelIndex &indice) const override;

    void ponResaltado(int fila, bool resaltado);
    /// Another description, in the interface's language.
    void ponDescripcion(int fila, const QString &descripcion);

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
