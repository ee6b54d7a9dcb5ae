// SPDX-License-Identifier: GPL-3.0-or-later
#include "Drawing.h"
#include "Scenes.h"

#include <array>
#include <cmath>
#include <numbers>

using namespace drawing;

namespace {

// When the spark, which starts and ends gently, passes each of the nodes.
constexpr std::array<double, 4> moments{.08, .26, .40, .58};

constexpr std::array<QPointF, 4> nodes{QPointF(-9, 9), QPointF(-9, -10), QPointF(9, 9),
                                       QPointF(9, -10)};

QPainterPath shield()
{
    QPainterPath path(QPointF(0, -27));
    path.cubicTo(7, -21.5, 15, -19, 24, -19);
    path.cubicTo(24, 4, 17, 19, 0, 27.5);
    path.cubicTo(-17, 19, -24, 4, -24, -19);
    path.cubicTo(-15, -19, -7, -21.5, 0, -27);
    path.closeSubpath();
    return path;
}

QPainterPath graph()
{
    QPainterPath path(nodes.front());
    for (const QPointF &node : nodes)
        path.lineTo(node);
    return path;
}

/// A band of light that glides over the shield once the spark has arrived.
void drawSheen(QPainter &painter, double t)
{
    const double x = -50 + 100 * ease(span(t, .62, .90));
    painter.save();
    painter.setClipPath(shield());
    QPainterPath band;
    band.addPolygon(QPolygonF{{x, -30}, {x + 9, -30}, {x - 7, 30}, {x - 16, 30}});
    fill(painter, band, faded(Qt::white, .22));
    painter.restore();
}

} // namespace

void drawShield(QPainter &painter, double t)
{
    const double run = ease(span(t, moments.front(), moments.back()));
    const double glow = 1 - ease(span(t, .80, 1));
    const double breath = std::sin(2 * std::numbers::pi * t);

    painter.save();
    painter.translate(0, .8 * breath);
    painter.setPen(line());
    painter.setBrush(deep);
    painter.drawPath(shield());
    drawSheen(painter, t);

    const QPainterPath edges = graph();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(line(paper, 3));
    painter.drawPath(edges);
    if (run > 0) {
        painter.setPen(line(faded(gold, glow), 3));
        painter.drawPath(beginning(edges, run));
    }
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const double swell = pulse(t, moments[i] - .04, moments[i] + .10);
        dot(painter, nodes[i], 4 + 1.8 * swell, i % 3 == 0 ? gold : coral);
    }
    if (run > 0 && run < 1) {
        const QPointF spark = edges.pointAtPercent(run);
        dot(painter, spark, 3.6, faded(Qt::white, .35));
        dot(painter, spark, 1.8, Qt::white);
    }
    painter.restore();
}
