// SPDX-License-Identifier: GPL-3.0-or-later
#include "Drawing.h"
#include "Scenes.h"

using namespace drawing;

namespace {

constexpr double wipeFrom = .16;
constexpr double wipeTo = .74;

QPainterPath scribble()
{
    QPainterPath path(QPointF(-15, 8));
    for (int i = 0; i < 5; ++i) {
        const double x = -15 + 6.0 * i;
        path.cubicTo(x + 1, -8, x + 5, -8, x + 4, 2);
        path.cubicTo(x + 3, 10, x + 3, 12, x + 6, 8);
    }
    return path;
}

/// To and fro over the whole scribble, from left to right.
QPainterPath wipe()
{
    QPainterPath path(QPointF(-17, 10));
    constexpr int strokes = 8;
    for (int i = 1; i <= strokes; ++i)
        path.lineTo(-17 + 34.0 * i / strokes, i % 2 == 0 ? 10 : -6);
    return path;
}

void drawSheet(QPainter &painter)
{
    painter.setPen(line());
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(-24, -15, 48, 34), 4, 4);
}

void drawRubber(QPainter &painter, QPointF corner)
{
    painter.save();
    painter.translate(corner);
    painter.rotate(28);
    QPainterPath body;
    body.addRoundedRect(QRectF(-6, -22, 12, 22), 2.5, 2.5);
    QPainterPath sleeve;
    sleeve.addRoundedRect(QRectF(-6, -22, 12, 14), 2.5, 2.5);
    fill(painter, body, gold);
    fill(painter, sleeve, deep);
    painter.setPen(line());
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(body);
    painter.restore();
}

/// Crumbs fall from where the rubber has been.
void drawCrumbs(QPainter &painter, const QPainterPath &track, double wiped)
{
    for (int i = 1; i < 8; ++i) {
        const double born = i / 8.0;
        const double age = (wiped - born) * 3;
        if (age < 0 || age > 1)
            continue;
        const QPointF at =
            track.pointAtPercent(born) + QPointF(3 * age * (i % 2 == 0 ? 1 : -1), 9 * age * age);
        dot(painter, at, 1.1 * (1 - .6 * age), faded(gold, 1 - age));
    }
}

/// The sheet is clean: a line of dots invites to write anew.
void drawInvitation(QPainter &painter, double t)
{
    for (int i = 0; i < 4; ++i) {
        const double start = .76 + .035 * i;
        dot(painter, {-12 + 8.0 * i, 8}, 1.8 * overshoot(span(t, start, start + .1)), green);
    }
}

} // namespace

void drawEraser(QPainter &painter, double t)
{
    static const QPainterPath track = wipe();
    const double wiped = ease(span(t, wipeFrom, wipeTo));

    painter.save();
    painter.translate(0, 4);
    drawSheet(painter);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(line(coral, 2.6));
    painter.drawPath(scribble());

    if (wiped > 0) {
        painter.save();
        painter.setClipRect(QRectF(-22.5, -13.5, 45, 31));
        painter.setPen(line(Qt::white, 13.5));
        painter.drawPath(beginning(track, wiped));
        painter.restore();
    }
    drawCrumbs(painter, track, wiped);
    drawInvitation(painter, t);

    const QPointF arriving = QPointF(-6, -14) * (1 - ease(span(t, 0, wipeFrom)));
    const QPointF leaving = QPointF(-3, -9) * overshoot(span(t, wipeTo, .92));
    drawRubber(painter, track.pointAtPercent(wiped) + arriving + leaving);
    painter.restore();
}
