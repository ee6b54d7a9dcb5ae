// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

/// The contrast of two colours, 1 to 21, as the Web Content Accessibility Guidelines 2.1 define it;
/// text needs 4.5.
inline double contraste(const QColor &a, const QColor &b)
{
    const auto lineal = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    const auto luminancia = [lineal](const QColor &color) {
        return 0.2126 * lineal(color.redF()) + 0.7152 * lineal(color.greenF()) +
               0.0722 * lineal(color.blueF());
    };
    const auto [oscura, clara] = std::minmax({luminancia(a), luminancia(b)});
    return (clara + 0.05) / (oscura + 0.05);
}
