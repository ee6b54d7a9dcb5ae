// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/plot/EjeDeGrafica.h"

#include "shell/core/Formatos.h"

#include <QPainter>
#include <cmath>

EjeDeGrafica::EjeDeGrafica(const Encuadre &encuadre, Qt::Orientation orientacion, QWidget *grafica)
    : QWidget(grafica), m_encuadre(encuadre), m_orientacion(orientacion)
{
}

void EjeDeGrafica::ponTitulo(const QString &titulo)
{
    m_titulo = titulo;
    update();
}

QList<qint64> EjeDeGrafica::marcas() const
{
    const QRectF &visible = m_encuadre.visible();
    if (m_orientacion == Qt::Vertical) {
        const qreal separacion = 2.2 * fontMetrics().height();
        return Encuadre::marcas(visible.top(), visible.bottom(),
                                static_cast<int>(m_encuadre.lienzo().height() / separacion));
    }
    const QString ancho = formatoEntero(std::llround(visible.right()));
    const qreal separacion = fontMetrics().horizontalAdvance(ancho) + 2.0 * fontMetrics().height();
    return Encuadre::marcas(visible.left(), visible.right(),
                            static_cast<int>(m_encuadre.lienzo().width() / separacion));
}

void EjeDeGrafica::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    pintor.translate(-pos());
    pintor.setPen(QPen(palette().color(QPalette::WindowText), 1));
    if (m_orientacion == Qt::Horizontal)
        pintaHorizontal(pintor);
    else
        pintaVertical(pintor);
}

void EjeDeGrafica::pintaHorizontal(QPainter &pintor) const
{
    const QRectF &lienzo = m_encuadre.lienzo();
    const qreal y = lienzo.bottom() + 0.5;
    pintor.drawLine(QPointF(lienzo.left(), y), QPointF(lienzo.right(), y));
    for (const qint64 marca : marcas()) {
        const qreal x = m_encuadre.aPixel({static_cast<qreal>(marca), 0}).x();
        pintor.drawLine(QPointF(x, y), QPointF(x, y + Muesca - 2));
        const QRectF sitio(x - 100, y + Muesca - 2, 200, fontMetrics().height());
        pintor.drawText(sitio, Qt::AlignHCenter | Qt::AlignTop, formatoEntero(marca));
    }
    const QRectF pie(0, geometry().bottom() - fontMetrics().height(), lienzo.right(),
                     fontMetrics().height());
    pintor.drawText(pie, Qt::AlignRight | Qt::AlignBottom, m_titulo);
}

void EjeDeGrafica::pintaVertical(QPainter &pintor) const
{
    const QRectF &lienzo = m_encuadre.lienzo();
    const qreal x = lienzo.left() - 0.5;
    pintor.drawLine(QPointF(x, lienzo.top()), QPointF(x, lienzo.bottom()));
    for (const qint64 marca : marcas()) {
        const qreal y = m_encuadre.aPixel({0, static_cast<qreal>(marca)}).y();
        pintor.drawLine(QPointF(x - Muesca + 2, y), QPointF(x, y));
        const QRectF sitio(0, y - 50, x - Muesca, 100);
        pintor.drawText(sitio, Qt::AlignRight | Qt::AlignVCenter, formatoEntero(marca));
    }
    // Lying, so that it can be read; the axis is as wide as it needs.
    pintor.drawText(QRectF(0, 0, width(), fontMetrics().height()), Qt::AlignLeft | Qt::AlignTop,
                    m_titulo);
}
