// SPDX-License-Identifier: GPL-3.0-or-later
#include "Drawing.h"
#include "Scenes.h"

using namespace drawing;

void drawQuestionMark(QPainter &painter, double t)
{
    // The mark rocks on its point; the point hops when the rocking begins.
    const double hop = -2.2 * pulse(t, .04, .18) - 1.2 * pulse(t, .18, .28);
    const double lean = 24 * swing(span(t, .10, .92), 3.5);

    painter.save();
    dot(painter, {}, 26, glow);
    painter.translate(0, 17);

    QPainterPath hook(QPointF(-8.5, -27));
    hook.cubicTo(-8.5, -33.5, -4.5, -37, 0, -37);
    hook.cubicTo(5, -37, 9, -33.5, 9, -28.5);
    hook.cubicTo(9, -21, 0, -21.5, 0, -12.5);

    painter.save();
    painter.rotate(lean);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(line(ink, 6.5));
    painter.drawPath(hook);
    painter.restore();

    dot(painter, {0, -1.5 + hop}, 4, coral);
    painter.restore();
}
