// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>

class QTouchEvent;

/// What fingers do in a browser: they scroll what they are drawn over, and one that rests brings
/// the context menu. Clicks Qt makes of touches by itself.
class Dedos : public QObject
{
    Q_OBJECT

public:
    /// Listens to the whole application from now on.
    explicit Dedos(QObject *padre);

protected:
    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    void sigue(const QTouchEvent &toque);
    bool aparta(QObject &objeto, QEvent &suceso);
    void pideMenu();

    QTimer m_reposo;
    QPoint m_donde;
    bool m_arrastra = false;
};
