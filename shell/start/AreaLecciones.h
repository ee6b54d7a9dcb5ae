// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMdiArea>

/// The area of the child windows. While none is in sight it shows its welcome.
class AreaLecciones : public QMdiArea
{
    Q_OBJECT

public:
    explicit AreaLecciones(QWidget *padre = nullptr);

    /// What to show while there is no child window; it becomes the area's.
    void ponBienvenida(QWidget *bienvenida);

Q_SIGNALS:
    /// The first child window came in sight, or the last one went.
    void hayVentanas(bool algunas);

protected:
    bool eventFilter(QObject *objeto, QEvent *suceso) override;
    void resizeEvent(QResizeEvent *suceso) override;

private:
    void actualizaBienvenida();

    QWidget *m_bienvenida = nullptr;
};
