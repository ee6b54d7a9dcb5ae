// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPointF>
#include <optional>

/// The growth y = factor · base^x that fits some points best.
struct AjusteExponencial
{
    double factor = 0;
    double base = 0;
    double r2 = 0; ///< the share of the variance of log y that the growth explains, 0 to 1

    double valor(double x) const;
};

/// The least squares line through the logarithms; nothing with fewer than three points or when all
/// of them have one x. Every y is positive.
std::optional<AjusteExponencial> ajustaExponencial(const QList<QPointF> &puntos);
