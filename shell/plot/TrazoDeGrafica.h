// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <algorithm>
#include <cmath>

/// How the points of a plot are drawn.
struct TrazoDeGrafica
{
    bool unido = true; ///< by lines
    qreal inicio = 0;  ///< from which x on the points repeat themselves
    qreal periodo = 0; ///< after how much of x; 0 when they do not

    /// Which turn of the period an x belongs to, from 0 on; -1 before the first. 0 without a
    /// period.
    int vuelta(qreal x) const
    {
        return periodo > 0
                   ? static_cast<int>(std::max(qreal(-1), std::floor((x - inicio) / periodo)))
                   : 0;
    }
};
