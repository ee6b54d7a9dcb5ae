// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Formula.h"

#include <QFont>
#include <QLineF>
#include <QList>
#include <QPointF>
#include <QSizeF>

class QPainter;

/// A formula set for the screen or paper: powers raised, fractions over a bar, unknowns in italics,
/// long numbers shortened; broken before a sign where it is wider than there is room, and
/// set smaller, with its numbers shortened, where that does not help.
class FormulaCompuesta
{
public:
    FormulaCompuesta(const Formula &formula, const QFont &fuente, qreal ancho);

    QSizeF tamano() const { return m_tamano; }

    /// With the painter's pen.
    void pinta(QPainter &pintor, QPointF esquina) const;

    /// A text at the left end of its base line, in its own font.
    struct Letras
    {
        QPointF lugar;
        QString texto;
        QFont fuente;
    };
    /// Something set: its pieces around the left end of the base line, and its size.
    struct Caja
    {
        QList<Letras> letras;
        QList<QLineF> rayas;
        qreal ancho = 0;
        qreal alto = 0; ///< above the base line
        qreal bajo = 0; ///< below it
    };

private:
    void reparte(const std::vector<Caja> &trozos, qreal ancho, qreal sangria);

    Caja m_caja; ///< all of it, around the top left corner
    QSizeF m_tamano;
};
