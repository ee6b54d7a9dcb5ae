// SPDX-License-Identifier: GPL-3.0-or-later
#include "Drawing.h"
#include "Scenes.h"

#include <array>

using namespace drawing;

namespace {

QPainterPath glass()
{
    QPainterPath path(QPointF(-6, 13));
    path.cubicTo(-6, 7, -13, 4, -13, -5);
    path.arcTo(QRectF(-13, -18, 26, 26), 180, -180);
    path.cubicTo(13, 4, 6, 7, 6, 13);
    path.closeSubpath();
    return path;
}

QColor mixed(const QColor &from, const QColor &to, double share)
{
    const auto part = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return {part(from.red(), to.red()), part(from.green(), to.green()),
            part(from.blue(), to.blue())};
}

void drawRays(QPainter &painter, double t)
{
    constexpr std::array<double, 7> directions{-90, -130, -50, -170, -10, 150, 30};
    for (std::size_t i = 0; i < directions.size(); ++i) {
        const double start = .40 + .025 * static_cast<double>(i);
        const double grown = overshoot(span(t, start, start + .16));
        if (t <= start)
            continue;
        const double breath = .6 * pulse(t, .70, .84) + .6 * pulse(t, .86, 1);
        painter.setPen(line(coral, 2.4));
        painter.drawLine(onCircle(18.5, directions[i]) + QPointF(0, -5),
                         onCircle(18.5 + 5 * grown + breath, directions[i]) + QPointF(0, -5));
    }
}

} // namespace

void drawLightBulb(QPainter &painter, double t)
{
    const double lit = ease(span(t, .30, .42));
    const double hop = -2.5 * pulse(t, .30, .50);

    painter.save();
    painter.translate(0, 2 + hop);
    dot(painter, {0, -5}, 16 + 8 * overshoot(span(t, .32, .55)), faded(glow, lit));
    drawRays(painter, t);

    // A little shiver comes before the idea.
    painter.translate(0, 14);
    painter.rotate(7 * swing(1 - span(t, .06, .30), 2));
    painter.translate(0, -14);

    painter.setPen(line());
    painter.setBrush(mixed(paper, gold, lit));
    painter.drawPath(glass());
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF{{-4, -6}, {0, -2}, {4, -6}});
    painter.drawLine(QPointF(0, -2), QPointF(0, 12));
    painter.drawLine(QPointF(-6, 18), QPointF(6, 18));
    painter.drawLine(QPointF(-3, 22.5), QPointF(3, 22.5));
    painter.restore();
}
