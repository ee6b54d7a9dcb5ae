// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/plot/Encuadre.h"
#include "shell/plot/TrazoDeGrafica.h"

#include <QPalette>
#include <QString>
#include <utility>

class QPainter;

/// Draws a plot piece by piece, each over the ones before, in the colours of the program's look.
class PintorDeGrafica
{
public:
    PintorDeGrafica(const Encuadre &encuadre, const QPalette &colores, QPainter &pintor);

    void fondo();
    /// Shades what lies between two x; nothing when they are equal.
    void tramo(qreal desde, qreal hasta);
    void rejilla(const QList<qint64> &enX, const QList<qint64> &enY);
    /// The points, and the lines between them where they are joined; every other turn of a period
    /// in a second colour.
    void funcion(const QList<QPointF> &puntos, const QColor &color, const TrazoDeGrafica &trazo);
    /// A dashed straight line over the points; nothing when its ends are equal.
    void recta(QPointF desde, QPointF hasta, const QColor &color);
    /// Names beside their colours, in the upper left corner.
    void leyenda(const QList<std::pair<QString, QColor>> &nombres);
    void marcoDelFoco();

private:
    const Encuadre &m_encuadre;
    const QPalette &m_colores;
    QPainter &m_pintor;
};
