// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>

class QAction;
class QMdiArea;
class QMenu;

/// The menu "Ventana" of a work area: cascade, tile, close, next, previous, and the list of its
/// child windows, made anew each time it opens.
class MenuVentana : public QObject
{
    Q_OBJECT

public:
    MenuVentana(QMenu *menu, QMdiArea *area);

private:
    void rellena();

    QMenu *m_menu;
    QMdiArea *m_area;
    QList<QAction *> m_fijas;
};
