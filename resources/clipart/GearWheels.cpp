// SPDX-License-Identifier: GPL-3.0-or-later
#include "Drawing.h"
#include "Scenes.h"

using namespace drawing;

namespace {

// One module for both wheels, so that they mesh: pitch radius = module * teeth / 2.
constexpr double module = 3.8;
constexpr int teethPassed = 3; // in a whole film; a whole number, so that it closes

struct Wheel
{
    QPointF centre;
    int teeth;
    double rotation; // degrees of one tooth's middle

    double pitch() const { return 360.0 / teeth; }
    double radius() const { return module * teeth / 2; }
};

QPolygonF outline(const Wheel &wheel)
{
    const double tip = wheel.radius() + .70 * module;
    const double root = wheel.radius() - .82 * module;
    QPolygonF corners;
    for (int tooth = 0; tooth < wheel.teeth; ++tooth) {
        const double middle = tooth * wheel.pitch();
        const double wide = .34 * wheel.pitch();
        const double narrow = .17 * wheel.pitch();
        corners << onCircle(root, middle - wide) << onCircle(tip, middle - narrow)
                << onCircle(tip, middle + narrow) << onCircle(root, middle + wide);
    }
    return corners;
}

void draw(QPainter &painter, const Wheel &wheel, const QColor &color)
{
    painter.save();
    painter.translate(wheel.centre);
    painter.rotate(wheel.rotation);
    painter.setPen(line());
    painter.setBrush(color);
    painter.drawPolygon(outline(wheel));
    painter.setBrush(background);
    painter.drawEllipse(QPointF(), .28 * wheel.radius(), .28 * wheel.radius());
    painter.restore();
}

/// The wheel with `teeth` teeth that `driver` turns, standing at `degrees` from it.
Wheel driven(const Wheel &driver, int teeth, double degrees)
{
    Wheel wheel{{}, teeth, 0};
    wheel.centre = driver.centre + onCircle(driver.radius() + wheel.radius(), degrees);
    // Where the wheels touch, a tooth of one stands in the middle of a gap of the other.
    const double ahead = (driver.rotation - degrees) / driver.pitch();
    wheel.rotation = degrees + 180 - (ahead + .5) * wheel.pitch();
    return wheel;
}

} // namespace

void drawGearWheels(QPainter &painter, double t)
{
    Wheel large{{-7.2, -7.2}, 9, 0};
    large.rotation = t * teethPassed * large.pitch();
    draw(painter, driven(large, 6, 45), coral);
    draw(painter, large, gold);
}
