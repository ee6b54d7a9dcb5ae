// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPen>

/// What all scenes share: palette, line, shapes and the shaping of movement. A scene is drawn on a
/// square of 64 × 64 units with the origin at its centre, y downwards; time runs from 0 to 1.
namespace drawing {

inline constexpr double side = 64;
inline constexpr double lineWidth = 2.4;

inline constexpr QColor background{0xf4, 0xf6, 0xfb};
inline constexpr QColor ink{0x27, 0x80, 0x9f};
inline constexpr QColor deep{0x1f, 0x6f, 0x8b};
inline constexpr QColor paper{0xe6, 0xf2, 0xf7};
inline constexpr QColor coral{0xe4, 0x57, 0x2e};
inline constexpr QColor gold{0xf2, 0xa5, 0x41};
inline constexpr QColor glow{0xff, 0xe6, 0xb3};
inline constexpr QColor green{0x2e, 0x9e, 0x5b};

/// The pen of the family: round caps and joins.
QPen line(const QColor &color = ink, double width = lineWidth);

/// `color` with `opacity` from 0 to 1.
QColor faded(QColor color, double opacity);

/// Fills without outline.
void fill(QPainter &painter, const QPainterPath &path, const QColor &color);
void dot(QPainter &painter, QPointF centre, double radius, const QColor &color);

/// The point at `degrees` (clockwise from the right) on a circle around the origin.
QPointF onCircle(double radius, double degrees);

/// The share of `path` from its beginning that stands for `share` (0 to 1) of its length.
QPainterPath beginning(const QPainterPath &path, double share);

/// Where `t` stands between `from` and `to`: 0 before, 1 after, in between linear.
double span(double t, double from, double to);

/// Starts and ends gently.
double ease(double x);

/// Goes a little beyond 1 and comes back.
double overshoot(double x);

/// From 0 up to 1 and back to 0 between `from` and `to`.
double pulse(double t, double from, double to);

/// A swing that dies away: `swings` to and fro while `x` goes from 0 to 1, between -1 and 1.
double swing(double x, double swings);

} // namespace drawing
