// SPDX-License-Identifier: GPL-3.0-or-later
#include "Drawing.h"
#include "Scenes.h"

#include <array>
#include <cmath>

using namespace drawing;

namespace {

constexpr int pieces = 30;

QPainterPath star(double radius)
{
    QPolygonF corners;
    for (int i = 0; i < 10; ++i)
        corners << onCircle(i % 2 == 0 ? radius : .56 * radius, -90 + 36 * i);
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    return path;
}

/// A number from 0 to 1 that looks random and is the same in every run.
double scatter(int piece, int kind)
{
    const double x = std::sin(piece * 12.9898 + kind * 78.233) * 43758.5453;
    return x - std::floor(x);
}

/// Confetti bursts from behind the star and falls.
void drawConfetti(QPainter &painter, double t)
{
    static constexpr std::array<QColor, 4> colors{coral, green, ink, gold};
    const double time = span(t, .12, 1);
    if (time <= 0)
        return;
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < pieces; ++i) {
        const double direction = -90 + 240 * (scatter(i, 1) - .5);
        const double speed = 52 + 40 * scatter(i, 2);
        // The air slows the first burst down; then the piece flutters to the ground.
        const double burst = (1 - std::exp(-4.5 * time)) / 2.1;
        const QPointF at = onCircle(speed * burst, direction) +
                           QPointF(2.2 * std::sin(9 * time + i), 30 * time * time);
        painter.save();
        painter.translate(at);
        painter.rotate(720 * time * (scatter(i, 3) - .5) + 360 * scatter(i, 4));
        painter.scale(1, .35 + .65 * std::abs(std::cos(7 * time + i)));
        painter.setBrush(colors[static_cast<std::size_t>(i) % colors.size()]);
        if (i % 3 == 0)
            painter.drawEllipse(QPointF(), 1.7, 1.7);
        else
            painter.drawRoundedRect(QRectF(-2.3, -1.4, 4.6, 2.8), .7, .7);
        painter.restore();
    }
}

void drawFace(QPainter &painter, double t)
{
    const double open = 1 - pulse(t, .62, .70); // a wink of both eyes
    painter.setPen(Qt::NoPen);
    painter.setBrush(deep);
    for (double x : {-4.5, 4.5})
        painter.drawEllipse(QPointF(x, -1.5), 1.5, .3 + 1.5 * open);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(line(deep));
    QPainterPath smile(QPointF(-4.5, 4));
    smile.quadTo(0, 9, 4.5, 4);
    painter.drawPath(smile);
}

} // namespace

void drawStar(QPainter &painter, double t)
{
    drawConfetti(painter, t);
    const double grown = overshoot(span(t, 0, .26));
    painter.save();
    painter.translate(0, 1 - 3 * pulse(t, .44, .60) - 2 * pulse(t, .66, .80));
    painter.rotate(-130 * (1 - ease(span(t, 0, .26))) + 9 * swing(span(t, .30, .95), 3));
    painter.scale(.25 + .75 * grown, .25 + .75 * grown);
    painter.setPen(line());
    painter.setBrush(gold);
    painter.drawPath(star(20));
    drawFace(painter, t);
    painter.restore();
}
