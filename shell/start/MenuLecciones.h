// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/Leccion.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>

/// The lessons, as the rows of the menu and as the cards of the welcome. Each row has its highlight
/// style, switched on and off by the window, and the mark of a window that is open or in front.
class MenuLecciones : public QAbstractListModel
{
public:
    static constexpr int PapelResaltado = Qt::UserRole;
    /// What the lesson teaches, and what is better done before.
    static constexpr int PapelDescripcion = Qt::AccessibleDescriptionRole;

    enum Marca { Cerrada, Abierta, Activa };
    static constexpr int PapelMarca = Qt::UserRole + 1;

    explicit MenuLecciones(const QList<Leccion> &lecciones, QObject *padre = nullptr);

    int rowCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int papel) const override;
    Qt::ItemFlags flags(const QModelIndex &indice) const override;

    void ponResaltado(int fila, bool resaltado);
    void ponMarca(int fila, Marca marca);
    /// Another description, in the interface's language.
    void ponDescripcion(int fila, const QString &descripcion);

private:
    QList<Leccion> m_lecciones;
    QList<bool> m_resaltadas;
    QList<Marca> m_marcas;
};

/// Paints a row of the menu: picture, caption, a rounded ground where it is highlighted; a bar for
/// the lesson in front, a dot for one that is open.
class PintorDeMenu : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *pintor, const QStyleOptionViewItem &opcion,
               const QModelIndex &indice) const override;
    QSize sizeHint(const QStyleOptionViewItem &opcion, const QModelIndex &indice) const override;

private:
    static void pintaMarca(QPainter &pintor, const QRect &cuadro, MenuLecciones::Marca marca);
};
