// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/web/Dedos.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QContextMenuEvent>
#include <QScroller>
#include <QTouchEvent>

using namespace std::chrono_literals;

namespace {

/// How long a finger rests until that is meant, and how far it may tremble, in pixels.
constexpr auto Reposo = 600ms;
constexpr int Temblor = 10;

bool esElFondoDeUnArea(const QObject *objeto)
{
    const auto *area = qobject_cast<const QAbstractScrollArea *>(objeto->parent());
    return area && area->viewport() == objeto;
}

} // namespace

Dedos::Dedos(QObject *padre) : QObject(padre)
{
    m_reposo.setSingleShot(true);
    m_reposo.setInterval(Reposo);
    connect(&m_reposo, &QTimer::timeout, this, &Dedos::pideMenu);
    qApp->installEventFilter(this);
}

bool Dedos::eventFilter(QObject *objeto, QEvent *suceso)
{
    if (suceso->type() == QEvent::Polish) {
        if (auto *area = qobject_cast<QAbstractScrollArea *>(objeto))
            QScroller::grabGesture(area->viewport(), QScroller::TouchGesture);
    } else if (objeto->isWindowType() && suceso->isPointerEvent()) {
        const auto tipo = suceso->type();
        if (tipo == QEvent::TouchBegin || tipo == QEvent::TouchUpdate)
            sigue(*static_cast<QTouchEvent *>(suceso));
        else if (tipo == QEvent::TouchEnd || tipo == QEvent::TouchCancel)
            m_reposo.stop();
    } else if (m_arrastra && esElFondoDeUnArea(objeto)) {
        return aparta(*objeto, *suceso);
    }
    return QObject::eventFilter(objeto, suceso);
}

/// A finger that scrolls neither selects what it passes nor clicks on what it takes along.
bool Dedos::aparta(QObject &objeto, QEvent &suceso)
{
    if (suceso.type() == QEvent::MouseMove)
        return true;
    if (suceso.type() != QEvent::MouseButtonRelease)
        return false;
    m_arrastra = false;
    const QPointF fuera(-10000, -10000);
    QMouseEvent suelta(QEvent::MouseButtonRelease, fuera, fuera, Qt::LeftButton, Qt::NoButton,
                       Qt::NoModifier);
    QApplication::sendEvent(&objeto, &suelta);
    return true;
}

void Dedos::sigue(const QTouchEvent &toque)
{
    const QPoint donde = toque.points().first().globalPosition().toPoint();
    if (toque.type() == QEvent::TouchBegin) {
        m_donde = donde;
        m_arrastra = false;
        m_reposo.start();
    } else if (toque.points().size() > 1 || (donde - m_donde).manhattanLength() > Temblor) {
        m_reposo.stop();
        m_arrastra = true;
    }
}

void Dedos::pideMenu()
{
    QWidget *control = QApplication::widgetAt(m_donde);
    if (!control)
        return;
    QContextMenuEvent menu(QContextMenuEvent::Mouse, control->mapFromGlobal(m_donde), m_donde);
    QApplication::sendEvent(control, &menu);
}
