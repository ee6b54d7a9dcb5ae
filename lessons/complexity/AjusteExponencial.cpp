// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/AjusteExponencial.h"

#include <cmath>

double AjusteExponencial::valor(double x) const
{
    return factor * std::pow(base, x);
}

std::optional<AjusteExponencial> ajustaExponencial(const QList<QPointF> &puntos)
{
    if (puntos.size() < 3)
        return {};
    const auto n = static_cast<double>(puntos.size());
    double mediaX = 0;
    double mediaY = 0;
    for (const QPointF &punto : puntos) {
        mediaX += punto.x() / n;
        mediaY += std::log(punto.y()) / n;
    }
    double xx = 0;
    double xy = 0;
    double yy = 0;
    for (const QPointF &punto : puntos) {
        const double dx = punto.x() - mediaX;
        const double dy = std::log(punto.y()) - mediaY;
        xx += dx * dx;
        xy += dx * dy;
        yy += dy * dy;
    }
    if (xx == 0)
        return {};
    const double pendiente = xy / xx;
    // Points on one height have no variance to explain: the line goes through all of them.
    const double r2 = yy == 0 ? 1 : xy * xy / (xx * yy);
    return AjusteExponencial{std::exp(mediaY - pendiente * mediaX), std::exp(pendiente), r2};
}
