// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/AjustePotencial.h"

std::optional<AjustePotencial> ajustaPotencial(const QList<QPointF> &logaritmos)
{
    if (logaritmos.size() < 3)
        return {};
    QPointF media;
    for (const QPointF &punto : logaritmos)
        media += punto / static_cast<double>(logaritmos.size());
    double xx = 0, xy = 0, yy = 0;
    for (const QPointF &punto : logaritmos) {
        const QPointF d = punto - media;
        xx += d.x() * d.x();
        xy += d.x() * d.y();
        yy += d.y() * d.y();
    }
    if (xx == 0)
        return {};
    const double pendiente = xy / xx;
    // Points on one height have no variance to explain: the line goes through all of them.
    return AjustePotencial{pendiente, media.y() - pendiente * media.x(),
                           yy == 0 ? 1 : xy * xy / (xx * yy)};
}
