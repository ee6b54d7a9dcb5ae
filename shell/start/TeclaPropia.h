// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QAction;
class QWidget;

/// Keeps the key of a command for the command where a field of its window would take it.
class TeclaPropia : public QObject
{
public:
    TeclaPropia(QAction *orden, QWidget *ventana);

protected:
    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    QAction *m_orden;
    QWidget *m_ventana;
};
