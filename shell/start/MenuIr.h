// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/Leccion.h"

#include <QObject>

class QAction;
class QMenu;

/// The menus of the lessons and of the topics of the lesson in front, whose first nine have keys:
/// Ctrl and Alt with their number.
class MenuIr : public QObject
{
    Q_OBJECT

public:
    MenuIr(QMenu *lecciones, QMenu *temas, const QList<Leccion> &contenido);

    /// Shows the topics of a lesson, of which one is in front; without any the menu is disabled.
    void muestraTemas(const QStringList &rotulos, int alFrente);

    /// The entry of a lesson, by its row.
    const QAction *leccion(int fila) const { return m_lecciones.value(fila); }

Q_SIGNALS:
    void leccionElegida(int fila);
    void temaElegido(int indice);
    /// The next topic (1), or the one before (-1).
    void temaVecino(int sentido);

private:
    void preparaTemas();

    QMenu *m_menuDeTemas;
    QList<QAction *> m_lecciones;
    QList<QAction *> m_temas;
};
