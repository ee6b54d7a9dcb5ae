// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <QSizeF>

/// Where the poles and discs of the Towers of Hanoi lie in a drawing of a given size, for a given
/// number of discs.
class GeometriaHanoi
{
public:
    GeometriaHanoi(QSizeF tamano, int discos);

    QRectF base() const;
    QRectF palo(int indice) const;
    /// Disc 1 is the narrowest; `altura` counts the discs that lie under it.
    QRectF disco(int disco, int palo, int altura) const;

private:
    qreal centro(int palo) const;

    QSizeF m_tamano;
    int m_discos;
    qreal m_grosor;
};
