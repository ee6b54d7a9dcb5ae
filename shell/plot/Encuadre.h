// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>

/// The part of a plane that a plot shows, and where it lies on screen. World coordinates grow
/// upwards, pixels downwards. Zoom and pan never leave the limits.
class Encuadre
{
public:
    /// The smallest side that can be shown, in world units: plots here are of whole numbers.
    static constexpr qreal LadoMinimo = 4;

    /// The whole of what can be shown, which is shown from now on. A side of less than 1 counts as
    /// one of 1.
    void ponLimites(const QRectF &limites);

    /// The rectangle on screen that is filled, in pixels.
    void ponLienzo(const QRectF &lienzo) { m_lienzo = lienzo; }
    const QRectF &lienzo() const { return m_lienzo; }

    /// What is shown: left and top are the least x and y.
    const QRectF &visible() const { return m_visible; }
    bool todoVisible() const { return m_visible == m_limites; }

    QPointF aPixel(QPointF mundo) const;
    QPointF aMundo(QPointF pixel) const;

    /// Shows `factor` times as much detail, keeping the point under a pixel where it is.
    void amplia(qreal factor, QPointF pixel);
    /// Moves the picture by so many pixels.
    void desplaza(QPointF pixeles);
    void muestraTodo() { m_visible = m_limites; }

    /// The round whole numbers (1, 2 or 5 times a power of ten apart) between two values, at most
    /// so many of them.
    static QList<qint64> marcas(qreal desde, qreal hasta, int maximo);

private:
    void recorta();

    QRectF m_limites{0, 0, 1, 1};
    QRectF m_visible = m_limites;
    QRectF m_lienzo{0, 0, 1, 1};
};
