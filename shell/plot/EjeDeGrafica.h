// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/plot/Encuadre.h"

#include <QWidget>

/// An axis of a plot: a line along the plot's edge with notches and numbers.
class EjeDeGrafica : public QWidget
{
public:
    /// The length of a notch, in pixels.
    static constexpr int Muesca = 6;

    /// Follows the frame of the plot, which outlives the axis; the plot gives it its place.
    EjeDeGrafica(const Encuadre &encuadre, Qt::Orientation orientacion, QWidget *grafica);

    /// What the axis measures; stands beyond its numbers.
    void ponTitulo(const QString &titulo);
    const QString &titulo() const { return m_titulo; }

    /// The numbers that have a notch.
    QList<qint64> marcas() const;

protected:
    void paintEvent(QPaintEvent *suceso) override;

private:
    void pintaHorizontal(QPainter &pintor) const;
    void pintaVertical(QPainter &pintor) const;

    const Encuadre &m_encuadre;
    Qt::Orientation m_orientacion;
    QString m_titulo;
};
