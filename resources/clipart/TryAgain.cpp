// SPDX-License-Identifier: GPL-3.0-or-later
#include "Drawing.h"
#include "Scenes.h"

#include <algorithm>
#include <cmath>

using namespace drawing;

namespace {

void drawCross(QPainter &painter)
{
    dot(painter, {}, 22, coral);
    painter.setPen(line(Qt::white, 4.5));
    painter.drawLine(QPointF(-7, -7), QPointF(7, 7));
    painter.drawLine(QPointF(7, -7), QPointF(-7, 7));
}

/// A bent arrow that leads back to its beginning; `turn` in degrees.
void drawAgain(QPainter &painter, double turn)
{
    dot(painter, {}, 22, green);
    painter.rotate(turn);
    painter.setPen(line(Qt::white, 4));
    QPainterPath bow;
    bow.arcMoveTo(QRectF(-9.5, -9.5, 19, 19), 10);
    bow.arcTo(QRectF(-9.5, -9.5, 19, 19), 10, -290);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(bow);

    painter.rotate(-80); // the bow ends 80 degrees above the right-hand side
    painter.translate(9.5, 0);
    painter.setBrush(Qt::white);
    painter.setPen(line(Qt::white, 1.5));
    painter.drawPolygon(QPolygonF{{-5.2, -.5}, {5.2, -.5}, {0, 7}});
}

} // namespace

void drawTryAgain(QPainter &painter, double t)
{
    const double turned = ease(span(t, .42, .62)); // 0: the cross, 1: the arrow
    const double width = std::abs(1 - 2 * turned);
    painter.save();
    painter.translate(7 * swing(span(t, .06, .40), 3.5), -3 * pulse(t, .42, .62));
    painter.setPen(Qt::NoPen);
    painter.scale(std::max(width, .02), 1);
    if (turned < .5)
        drawCross(painter);
    else
        drawAgain(painter, 360 * ease(span(t, .62, .95)));
    painter.restore();
}
