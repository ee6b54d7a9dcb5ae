// SPDX-License-Identifier: GPL-3.0-or-later
#include "Drawing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace drawing {

QPen line(const QColor &color, double width)
{
    return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QColor faded(QColor color, double opacity)
{
    color.setAlphaF(static_cast<float>(std::clamp(opacity, 0.0, 1.0)));
    return color;
}

void fill(QPainter &painter, const QPainterPath &path, const QColor &color)
{
    painter.fillPath(path, color);
}

void dot(QPainter &painter, QPointF centre, double radius, const QColor &color)
{
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    fill(painter, path, color);
}

QPointF onCircle(double radius, double degrees)
{
    const double angle = degrees * std::numbers::pi / 180;
    return {radius * std::cos(angle), radius * std::sin(angle)};
}

QPainterPath beginning(const QPainterPath &path, double share)
{
    constexpr int steps = 120;
    const int last = static_cast<int>(std::lround(std::clamp(share, 0.0, 1.0) * steps));
    QPainterPath part(path.pointAtPercent(0));
    for (int step = 1; step <= last; ++step)
        part.lineTo(path.pointAtPercent(static_cast<double>(step) / steps));
    return part;
}

double span(double t, double from, double to)
{
    return std::clamp((t - from) / (to - from), 0.0, 1.0);
}

double ease(double x)
{
    return x * x * (3 - 2 * x);
}

double overshoot(double x)
{
    constexpr double strength = 1.9;
    const double rest = x - 1;
    return 1 + (strength + 1) * rest * rest * rest + strength * rest * rest;
}

double pulse(double t, double from, double to)
{
    return std::sin(std::numbers::pi * span(t, from, to));
}

double swing(double x, double swings)
{
    return std::sin(2 * std::numbers::pi * swings * x) * (1 - x) * (1 - x);
}

} // namespace drawing
