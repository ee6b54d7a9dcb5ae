// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPointF>
#include <QString>

/// The course of a hailstone sequence for a plot: the common logarithm of its values' magnitude,
/// step by step. Of a long sequence every so many steps are kept, evenly spaced.
class CurvaGranizo
{
public:
    static constexpr int MaximoDePuntos = 1000;

    /// The value of the next step, from step 0 on; what is no number counts as a step without
    /// point.
    void agrega(const QString &valor);

    /// The points kept and the last one, by rising step.
    QList<QPointF> puntos() const;

    /// The highest point there has been, kept or not.
    double maximo() const { return m_maximo; }

private:
    QList<QPointF> m_puntos;
    QPointF m_ultimo;
    qint64 m_pasos = 0;
    qint64 m_distancia = 1; ///< steps between two points kept
    double m_maximo = 0;
};
