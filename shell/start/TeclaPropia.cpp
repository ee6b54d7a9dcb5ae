// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/TeclaPropia.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

TeclaPropia::TeclaPropia(QAction *orden, QWidget *ventana)
    : QObject(ventana), m_orden(orden), m_ventana(ventana)
{
    qApp->installEventFilter(this);
}

bool TeclaPropia::eventFilter(QObject *objeto, QEvent *suceso)
{
    if (suceso->type() != QEvent::ShortcutOverride || !objeto->isWidgetType())
        return false;
    const QKeySequence tecla(static_cast<QKeyEvent *>(suceso)->keyCombination());
    const bool suya = static_cast<QWidget *>(objeto)->window() == m_ventana &&
                      m_orden->shortcuts().contains(tecla);
    if (suya)
        suceso->ignore();
    return suya;
}
