// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/AreaLecciones.h"

#include "shell/access/Papel.h"

#include <QApplication>
#include <QEvent>
#include <QMdiSubWindow>

AreaLecciones::AreaLecciones(QWidget *padre) : QMdiArea(padre)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // To readers Qt shows the child windows of an area and nothing else that stands in it.
    ponPapel(this, QAccessible::LayeredPane);
}

void AreaLecciones::ponBienvenida(QWidget *bienvenida)
{
    m_bienvenida = bienvenida;
    // Not the viewport's: all children of that are taken for child windows.
    m_bienvenida->setParent(this);
    m_bienvenida->setGeometry(viewport()->geometry());
    actualizaBienvenida();
}

void AreaLecciones::actualizaBienvenida()
{
    if (!m_bienvenida)
        return;
    const auto ventanas = subWindowList();
    const bool vacia = std::all_of(ventanas.begin(), ventanas.end(),
                                   [](const QMdiSubWindow *v) { return v->isHidden(); });
    if (vacia == !m_bienvenida->isHidden())
        return;
    m_bienvenida->setVisible(vacia);
    Q_EMIT hayVentanas(!vacia);
    // Who closes the last lesson goes on from here by keyboard, unless the menu has the keys.
    const QWidget *enfocado = QApplication::focusWidget();
    if (vacia && (!enfocado || isAncestorOf(enfocado)))
        m_bienvenida->setFocus();
}

bool AreaLecciones::eventFilter(QObject *objeto, QEvent *suceso)
{
    const bool salida = QMdiArea::eventFilter(objeto, suceso);
    // An area filters the events of its child windows.
    const bool vistas = suceso->type() == QEvent::Show || suceso->type() == QEvent::Hide;
    if (vistas && qobject_cast<QMdiSubWindow *>(objeto))
        actualizaBienvenida();
    return salida;
}

void AreaLecciones::resizeEvent(QResizeEvent *suceso)
{
    QMdiArea::resizeEvent(suceso);
    if (m_bienvenida)
        m_bienvenida->setGeometry(viewport()->geometry());
}
