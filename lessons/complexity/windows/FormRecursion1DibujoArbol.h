// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/complexity/ArbolDeLlamadas.h"

#include <QWidget>

/// A drawing of a tree of calls, of which only the first ones may have been made: the others stand
/// pale.
class FormRecursion1DibujoArbol : public QWidget
{
    Q_OBJECT

public:
    explicit FormRecursion1DibujoArbol(QWidget *padre = nullptr);

    void ponArbol(const ArbolDeLlamadas &arbol);
    /// How many calls have been made; the last of them stands out.
    void ponHechas(int hechas);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *suceso) override;

private:
    QPointF lugar(const Llamada &llamada) const;
    qreal radio() const;
    void pintaLlamada(QPainter &pintor, int indice) const;

    ArbolDeLlamadas m_arbol{1, false};
    int m_hechas = 0;
};
