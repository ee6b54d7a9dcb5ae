// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/plot/Encuadre.h"

class QFrame;
class QLabel;
class QWidget;

/// The two rulers of a plot, which follow the pointer, and beside the axes the coordinates at which
/// they stand: `ReglaHorizontal`, `ReglaVertical`, `LabelX`, `LabelY`, children of the plot.
class ReglasDeGrafica
{
public:
    ReglasDeGrafica(const Encuadre &encuadre, QWidget *grafica);

    /// Shows them at a pixel of the plot.
    void sigue(QPointF pixel);
    void oculta();

private:
    void coloca(QPoint pixel);

    const Encuadre &m_encuadre;
    QWidget *m_grafica;
    QFrame *m_horizontal, *m_vertical;
    QLabel *m_labelX, *m_labelY;
};
