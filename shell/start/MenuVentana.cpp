// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/MenuVentana.h"

#include "shell/core/ModGlobal.h"

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

using namespace Qt::Literals::StringLiterals;

MenuVentana::MenuVentana(QMenu *menu, QMdiArea *area) : QObject(menu), m_menu(menu), m_area(area)
{
    const auto agrega = [this](const QString &texto, auto orden) {
        QAction *accion = m_menu->addAction(Traduce(texto));
        connect(accion, &QAction::triggered, m_area, orden);
        m_fijas << accion;
        return accion;
    };
    agrega(u"&Siguiente"_s, &QMdiArea::activateNextSubWindow)->setShortcut(Qt::CTRL | Qt::Key_Tab);
    agrega(u"&Anterior"_s, &QMdiArea::activatePreviousSubWindow)
        ->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab);
    m_menu->addSeparator();
    agrega(u"En &cascada"_s, &QMdiArea::cascadeSubWindows);
    agrega(u"En &mosaico"_s, &QMdiArea::tileSubWindows);
    m_menu->addSeparator();
    agrega(u"Cerrar &todas"_s, &QMdiArea::closeAllSubWindows);
    m_menu->addSeparator();
    connect(m_menu, &QMenu::aboutToShow, this, &MenuVentana::rellena);
}

void MenuVentana::rellena()
{
    const auto acciones = m_menu->actions();
    for (QAction *accion : acciones) {
        if (!accion->isSeparator() && !m_fijas.contains(accion))
            delete accion;
    }
    const auto ventanas = m_area->subWindowList();
    int numero = 0;
    for (QMdiSubWindow *ventana : ventanas) {
        if (!ventana->isVisible())
            continue;
        QAction *accion = m_menu->addAction(u"&%1  %2"_s.arg(++numero).arg(ventana->windowTitle()));
        accion->setCheckable(true);
        accion->setChecked(ventana == m_area->activeSubWindow());
        connect(accion, &QAction::triggered, ventana,
                [this, ventana] { m_area->setActiveSubWindow(ventana); });
    }
}
