// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPointF>
#include <optional>

/// The growth y = factor · x^exponente that fits some points best, as a straight line between the
/// logarithms.
struct AjustePotencial
{
    double exponente = 0;
    double logFactor = 0; ///< decimal logarithm of the factor
    double r2 = 0;        ///< the share of the variance of log y that the growth explains, 0 to 1

    /// log₁₀ y for a log₁₀ x.
    double altura(double logX) const { return logFactor + exponente * logX; }
};

/// The least squares line through points that are decimal logarithms already; nothing with fewer
/// than three of them or when all have one x.
std::optional<AjustePotencial> ajustaPotencial(const QList<QPointF> &logaritmos);
